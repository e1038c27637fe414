#include "screens/stampacaso.h"

#include "screens/stampa.h"

using namespace Qt::StringLiterals;

namespace giacenza {

void stampaCaso(Schermata& schermata, TipoDocumento tipo, const ChiaveGiacenza& caso,
                const std::array<QString, 4>& didascalie, const TestiStampa& testi)
{
    const QString chiave = u"%1_%2"_s.arg(caso.numero).arg(caso.anno);
    std::optional<QString> motivo;
    schermata.durante([&] { motivo = stampaDocumento(&schermata, tipo, chiave, didascalie); });
    if (!motivo)
        return schermata.stato(testi.prodotto.arg(chiave));
    schermata.stato(*motivo);
    schermata.messaggio(testi.nonProdotto + u"\n\n"_s + *motivo, Stile::avviso);
}

} // namespace giacenza
