#include "base/impostazioni.h"

using namespace Qt::StringLiterals;

namespace giacenza {

QString etichettaReso(Movimento movimento)
{
    switch (movimento) {
    case Movimento::nessuno:
        return {};
    case Movimento::riconsegna:
        return u"Riconsegna a Destinatario"_s;
    case Movimento::reso:
        return u"Reso a Mittente"_s;
    }
    return {};
}

Impostazioni& impostazioni()
{
    static thread_local Impostazioni delThread;
    return delThread;
}

} // namespace giacenza
