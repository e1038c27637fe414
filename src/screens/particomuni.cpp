#include "screens/particomuni.h"

#include "base/orologio.h"
#include "dialogs/porto.h"
#include "widgets/campodata.h"
#include "widgets/limitetesto.h"
#include "widgets/naturamerce.h"
#include "widgets/tasti.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace giacenza {

PartiComuni::PartiComuni(Schermata& schermata, const ControlliComuni& c, const MappaSpedizione& mappa,
                         const Differenze& differenze)
    : mSchermata(schermata), mControlli(c), stampa(schermata),
      cliente(schermata, {c.txtCodiceCli, c.barCliente, c.cmdCercaCliente}, differenze.cliente),
      filialeGiacenza(schermata, {c.txtFilialeGia, c.barFilialeGia, differenze.avvertenzaFiliale},
                      differenze.senzaRiquadri),
      dataGiacenza(schermata, {c.txtDataGia, c.lblDataBuonFine, c.barGiorniSosta, differenze.avvertenzaData}),
      caso(schermata, c.lblNrGia, dataGiacenza),
      spedizione(schermata, mappa, filialeGiacenza, dataGiacenza, differenze.rigaMostrata)
{
    schermata.setRigaStato(c.lblStato);
    limitaCampi(&schermata);
    QObject::connect(c.cmdEsci, &QPushButton::clicked, &schermata, &QWidget::close);
    schermata.convalida().esenta(c.cmdEsci);
    // What is typed is what F11 adds and the save writes: it is not completed to a line that begins so.
    c.cmbNaturaMerce->setCompleter(nullptr);
    suTasto(c.cmbNaturaMerce, Qt::Key_F11, schermata.gestore([this] {
        mSchermata.durante([this] { AggiungiNaturaMerce(mControlli.cmbNaturaMerce); });
        CaricaNaturaMerce(mControlli.cmbNaturaMerce);
    }));
}

void PartiComuni::riempi()
{
    if (!leggiNaturaMerce(mControlli.cmbNaturaMerce)) {
        const auto dici = mSchermata.gestore([this] {
            // Closed at once, it says nothing after its end.
            if (mSchermata.isVisible())
                mSchermata.durante([this] { diciNaturaMerceNonLetta(mControlli.cmbNaturaMerce); });
        });
        // A box would let the host work while the screen is not there yet.
        QMetaObject::invokeMethod(&mSchermata, dici, Qt::QueuedConnection);
    }
    try {
        CaricaPorto(mControlli.cmbPorto, mSchermata.connessione());
    } catch (const ErroreDatabase& errore) {
        mSchermata.statoGuasto(errore, u"I termini di porto non si leggono. "_s);
    }
    filialeGiacenza.leggiFiliali();
    oggiNelleDate();
}

void PartiComuni::oggiNelleDate()
{
    const QString oggiBreve = dataBreve(oggi());
    scrivi(mControlli.txtDataGia, oggiBreve);
    scrivi(mControlli.lblDataLav, oggiBreve);
}

} // namespace giacenza
