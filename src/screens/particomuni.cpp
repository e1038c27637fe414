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
      filialeGiacenza(schermata, c.txtFilialeGia, c.barFilialeGia, differenze.avvertenzaFiliale),
      dataGiacenza(schermata, {c.txtDataGia, c.lblDataBuonFine, c.barGiorniSosta, differenze.avvertenzaData}),
      caso(schermata, c.lblNrGia, dataGiacenza),
      spedizione(schermata, mappa, filialeGiacenza, dataGiacenza, differenze.rigaMostrata)
{
    schermata.setRigaStato(c.lblStato);
    limitaCampi(&schermata);
    QObject::connect(c.cmdEsci, &QPushButton::clicked, &schermata, &QWidget::close);
    schermata.convalida().esenta(c.cmdEsci);
    suTasto(c.cmbNaturaMerce, Qt::Key_F11, schermata.gestore([this] {
        mSchermata.durante([this] { AggiungiNaturaMerce(mControlli.cmbNaturaMerce); });
        CaricaNaturaMerce(mControlli.cmbNaturaMerce);
    }));
}

void PartiComuni::riempi()
{
    CaricaNaturaMerce(mControlli.cmbNaturaMerce);
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
