#include "screens/schermatacaso.h"

#include "base/impostazioni.h"
#include "base/orologio.h"
#include "data/avviso.h"
#include "screens/campi.h"
#include "screens/stampa.h"
#include "widgets/campodata.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace giacenza {

std::optional<ChiaveGiacenza> SchermataCaso::casoMostrato()
{
    const QString numero = testo(lblNrGia);
    const auto giorno = leggiData(testo(txtDataGia));
    if (!numero.isEmpty() && giorno)
        return ChiaveGiacenza{numero, giorno->year()};
    stato(u"Nessuna giacenza sullo schermo: richiamarne una prima."_s);
    return std::nullopt;
}

void SchermataCaso::EmettiAvvisoGiacenza(bool ristampa, const QString& descrizione)
{
    const auto didascalie = leggiDidascalie();
    const auto caso = casoMostrato();
    if (!caso)
        return;
    if (!ristampa) {
        if (!avvisoAmmesso())
            return;
        const QDate giorno = oggi();
        const auto numero = contaAvviso(connessione(), impostazioni().percorsoDatabase, chiaveAvviso(*caso),
                                        giorno, descrizione);
        if (numero) {
            scrivi(lblDataAvviso, dataSql(giorno));
            avvisoContato(*numero);
        }
    }
    stampaCaso(TipoDocumento::avviso, *caso, didascalie,
               {u"Avviso di giacenza %1 prodotto."_s,
                u"L'avviso di giacenza non è stato stampato; la giacenza resta registrata."_s});
}

void SchermataCaso::stampaCaso(TipoDocumento tipo, const ChiaveGiacenza& caso,
                               const std::array<QString, 4>& didascalie, const TestiStampa& testi)
{
    const QString chiave = u"%1_%2"_s.arg(caso.numero).arg(caso.anno);
    const QPointer<const Schermata> io(this);
    const auto motivo = stampaDocumento(this, tipo, chiave, didascalie);
    restaAperta(io);
    if (!motivo)
        return stato(testi.prodotto.arg(chiave));
    stato(*motivo);
    messaggio(testi.nonProdotto + u"\n\n"_s + *motivo, Stile::avviso);
}

} // namespace giacenza
