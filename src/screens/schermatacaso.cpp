#include "screens/schermatacaso.h"

#include "component/impostazioni.h"
#include "component/orologio.h"
#include "data/avviso.h"
#include "screens/campi.h"
#include "screens/stampa.h"
#include "widgets/campodata.h"

#include <QLabel>

namespace giacenza {

std::optional<ChiaveGiacenza> SchermataCaso::casoMostrato()
{
    const QString numero = testo(lblNrGia);
    const auto giorno = leggiData(testo(txtDataGia));
    if (!numero.isEmpty() && giorno)
        return ChiaveGiacenza{numero, giorno->year()};
    stato(QStringLiteral("Nessuna giacenza sullo schermo: richiamarne una prima."));
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
               {QStringLiteral("Avviso di giacenza %1 prodotto."),
                QStringLiteral("L'avviso di giacenza non è stato stampato; la giacenza resta registrata.")});
}

void SchermataCaso::stampaCaso(TipoDocumento tipo, const ChiaveGiacenza& caso,
                               const std::array<QString, 4>& didascalie, const TestiStampa& testi)
{
    const QString chiave = QStringLiteral("%1_%2").arg(caso.numero).arg(caso.anno);
    const QPointer<const Schermata> io(this);
    const auto motivo = stampaDocumento(this, tipo, chiave, didascalie);
    restaAperta(io);
    if (!motivo)
        return stato(testi.prodotto.arg(chiave));
    stato(*motivo);
    messaggio(testi.nonProdotto + QStringLiteral("\n\n") + *motivo, Stile::avviso);
}

} // namespace giacenza
