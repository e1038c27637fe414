#include "fabbrica.h"

#include "stampa/modulodeposito.h"

using namespace Qt::StringLiterals;

namespace giacenza::stampa {

std::unique_ptr<ParteEsterna> Fabbrica::crea(const QString& nomeClasse)
{
    if (nomeClasse.compare(u"ReportDocDeposito.cModuliStampa"_s, Qt::CaseInsensitive) != 0)
        return nullptr;
    return std::make_unique<ModuloDeposito>();
}

} // namespace giacenza::stampa
