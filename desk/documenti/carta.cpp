#include "desk/documenti/carta.h"

#include "base/servizi.h"
#include "reports/letters/fontedocumenti.h"

using namespace Qt::StringLiterals;

namespace giacenza::documenti {

Carta cartaDelleLettere(const QString& logo)
{
    Carta carta;
    carta.logo = logo;
    for (std::size_t i = 0; i < carta.didascalie.size(); ++i)
        carta.didascalie[i] = LeggiIni(u"Bord"_s, u"CaptionLbl%1"_s.arg(i + 1));
    carta.piede = LeggiPiede();
    carta.cartella = cartellaDocumenti();
    return carta;
}

} // namespace giacenza::documenti
