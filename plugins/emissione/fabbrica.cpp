#include "fabbrica.h"

#include "emissione/emittente.h"

namespace giacenza::emissione {

std::unique_ptr<ParteEsterna> Fabbrica::crea(const QString& nomeClasse)
{
    if (nomeClasse.compare(QString::fromUtf16(classeEmittenteLdv), Qt::CaseInsensitive) != 0)
        return nullptr;
    return std::make_unique<EmittenteDeposito>();
}

} // namespace giacenza::emissione
