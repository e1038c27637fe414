#pragma once

#include "screens/elencospedizioni.h"
#include "screens/particomuni.h"

namespace Ui {
class frmGiacenza;
}

namespace giacenza {

/// Finds a waybill of the customer, by its number or by the sender's reference, and shows it on the
/// registration screen. With the waybill's branch the lookup is direct; without it the shipment search opens
/// first.
class RicercaLdv
{
public:
    RicercaLdv(Schermata& schermata, const Ui::frmGiacenza& forma, PartiComuni& parti);

    /// Looks up what stands in number, date and branch.
    void perNumero() { ricerca(mNumero); }

    /// The visible mark of a waybill that is held already.
    void segnaGiacenza(bool giacente);

private:
    void collega(ChiaveRicerca& chiave, QPushButton* bottone);
    void PulisciCampi();
    Seguito lascia(ChiaveRicerca& chiave);
    void ricerca(ChiaveRicerca& chiave);
    void ricercaDiretta(const ChiaveRicerca& chiave, QDate giorno);
    void RicercaSpedizione(const ChiaveRicerca& chiave);
    void cercate();
    void mostra(const QString& istruzione, const QString& nonTrovata);

    Schermata& mSchermata;
    const Ui::frmGiacenza& mUi;
    PartiComuni& mParti;
    ElencoSpedizioni mElenco;
    ChiaveRicerca mNumero;
    ChiaveRicerca mRiferimento;
};

} // namespace giacenza
