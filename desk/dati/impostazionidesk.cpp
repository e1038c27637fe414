#include "desk/dati/impostazionidesk.h"

#include "base/servizi.h"
#include "base/testoerrore.h"
#include "database/valori.h"

using namespace Qt::StringLiterals;

namespace giacenza::desk {

ImpostazioniDesk leggiImpostazioniDesk()
{
    constexpr int massimo = 3650;
    ImpostazioniDesk lette;
    try {
        const QString scritto = LeggiIni(u"Desk"_s, u"GiorniFerma"_s);
        if (scritto.isEmpty())
            return lette;
        const int giorni = soloCifre(scritto) ? scritto.toInt() : 0;
        if (giorni >= 1 && giorni <= massimo)
            lette.giorniFerma = giorni;
        else
            lette.guasto =
                u"Nelle impostazioni GiorniFerma vale \"%1\" invece di un numero da 1 a %2: si conta %3."_s
                    .arg(scritto, QString::number(massimo), QString::number(lette.giorniFerma));
    } catch (...) {
        lette.guasto = testoErrore();
    }
    return lette;
}

} // namespace giacenza::desk
