#include "screens/ricercaspedizione.h"

#include "search/frmRicercaGia.h"

#include <QPointer>

namespace giacenza {

std::optional<SpedizioneScelta> apriRicercaSpedizione(QWidget* padre, const AperturaRicerca& apertura)
{
    // The screen, and the dialog with it, may be destroyed while the dialog is open.
    const QPointer<frmRicercaGia> dialogo = new frmRicercaGia(padre);
    dialogo->setTipoRicerca(apertura.tipoRicerca);
    dialogo->setTitolo(apertura.titolo);
    dialogo->setCaptionLabel(apertura.captionLabel);
    dialogo->setRagioneSocialeCliente(apertura.ragioneSocialeCliente);
    dialogo->setCodiceCliente(apertura.cliente);
    dialogo->setFiliale(apertura.filiale);
    dialogo->setRiferimentoCliente(apertura.riferimento);
    dialogo->setNumLetVett(apertura.numero);
    dialogo->setAnnoOdata(apertura.annoOdata);
    dialogo->setGiacenza(apertura.giacenza);
    dialogo->setAnnoGiacenza(apertura.annoGiacenza);
    dialogo->exec();
    if (!dialogo)
        return std::nullopt;
    std::optional<SpedizioneScelta> scelta;
    if (dialogo->accettato())
        scelta = SpedizioneScelta{dialogo->NumLetVett(), dialogo->DataLetVett()};
    delete dialogo;
    return scelta;
}

} // namespace giacenza
