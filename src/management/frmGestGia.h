#pragma once

#include "screens/ricercaspedizione.h"
#include "screens/schermatacaso.h"

#include <memory>

namespace Ui {
class frmGestGia;
}

namespace giacenza {

/// The management screen: brings up a held shipment, by its number and date or from the list of a customer's,
/// issues and prints again its notice, and closes it.
class frmGestGia : public SchermataCaso
{
    Q_OBJECT

public:
    frmGestGia();
    ~frmGestGia() override;

protected:
    void attivata() override;
    void rigaMostrata(const Recordset& riga) override;
    ChiaveCaso chiaveAvviso(const ChiaveGiacenza& caso) const override { return caso; }
    bool avvisoAmmesso() override;
    void avvisoContato(int numero) override;

private:
    void collega();

    /// Which fields a held shipment is sought by. Which one the retrieval goes by is the check box's alone.
    void ImpostaModoRicerca(bool perCliente);
    void PulisciCampi();
    void pulisciFuoriDa(const QList<QWidget*>& tenuti);
    void pulisciEsito();

    void richiama();
    void richiamaPerNumero();
    void richiamaPerCliente();
    /// The waybill of a held shipment of the customer, taken from a list.
    std::optional<SpedizioneScelta> RicercaSpedizione();
    bool mostra(const QString& istruzione);
    Seguito convalidaDataGiace();

    /// Key fields cannot be typed in while they name the case on the screen.
    void bloccaChiave(bool bloccata);
    void mostraStatoCaso();

    void emettiAvviso();
    void ristampa();

    void ChiudiGiacenza();
    void scriviChiusura(const ChiaveGiacenza& caso);
    void CalcolaCostiGiacenza();
    void SalvaCostiGiacenza(const ChiaveSpedizione& ldv, const QString& fisso, const QString& importo);

    std::unique_ptr<Ui::frmGestGia> mUi;
    QString mAvvisi;           ///< notices issued on the case on the screen; empty: none
    bool mRichiamando = false; ///< the focus moves because a case was brought up
};

} // namespace giacenza
