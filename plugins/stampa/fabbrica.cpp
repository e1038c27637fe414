#include "fabbrica.h"

#include "stampa/modulodeposito.h"

namespace giacenza::stampa {

std::unique_ptr<ParteEsterna> Fabbrica::crea(const QString& nomeClasse)
{
    if (nomeClasse.compare(QStringLiteral("ReportDocDeposito.cModuliStampa"), Qt::CaseInsensitive) != 0)
        return nullptr;
    return std::make_unique<ModuloDeposito>();
}

} // namespace giacenza::stampa
