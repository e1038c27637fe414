#include "desk/dati/impostazionidesk.h"

#include "base/servizi.h"
#include "base/testoerrore.h"
#include "database/valori.h"

using namespace Qt::StringLiterals;

namespace giacenza::desk {

std::optional<int> leggiGiorniFerma(const QString& scritto)
{
    const int giorni = soloCifre(scritto) ? scritto.toInt() : 0;
    return giorni >= 1 && giorni <= giorniFermaMassimi ? std::optional(giorni) : std::nullopt;
}

ImpostazioniDesk leggiImpostazioniDesk()
{
    ImpostazioniDesk lette;
    try {
        const QString scritto = LeggiIni(u"Desk"_s, u"GiorniFerma"_s);
        if (scritto.isEmpty())
            return lette;
        if (const auto giorni = leggiGiorniFerma(scritto))
            lette.giorniFerma = *giorni;
        else
            lette.guasto =
                u"Nelle impostazioni GiorniFerma vale \"%1\" invece di un numero da 1 a %2: si conta %3."_s
                    .arg(scritto, QString::number(giorniFermaMassimi), QString::number(lette.giorniFerma));
    } catch (...) {
        lette.guasto = testoErrore();
    }
    return lette;
}

} // namespace giacenza::desk
