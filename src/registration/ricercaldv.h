#pragma once

#include "screens/elencospedizioni.h"
#include "screens/particomuni.h"
#include "screens/ripristino.h"

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

    /// Looks up what stands in number, date and branch. Returns whether a shipment was found and shown.
    bool perNumero() { return ricerca(mNumero); }

    /// The row that the screen was just filled from.
    void rigaMostrata(const Recordset& riga);

    /// Whose the waybill on the screen is, in words, when it is another customer's; else empty.
    QString diAltroCliente() const;

    /// The shipment on the screen has become a held shipment.
    void registrata();

private:
    void collega(ChiaveRicerca& chiave, QPushButton* bottone);
    void PulisciCampi();
    Seguito lascia(ChiaveRicerca& chiave);
    /// These return whether a shipment was found and shown.
    bool ricerca(ChiaveRicerca& chiave);
    bool ricercaDiretta(const ChiaveRicerca& chiave, QDate giorno);
    bool RicercaSpedizione(ChiaveRicerca& chiave);
    bool mostra(const QString& istruzione, const QString& nonTrovata);
    void cercate();
    /// Once a lookup that a key started has found its shipment: where the clerk types next.
    void prosegui(bool trovata);
    Seguito lasciaFiliale();
    void avvertiMotivo();
    /// The visible mark of a waybill that is held already.
    void segnaGiacenza(bool giacente);
    /// The visible mark of a waybill of another customer. suo: its customer; empty: there is no waybill.
    void segnaCliente(const QString& suo);
    void clienteCambiato();
    /// What the last lookup cleared and Ctrl+Z brings back, in words; empty: nothing.
    QString offerta() const;

    Schermata& mSchermata;
    const Ui::frmGiacenza& mUi;
    PartiComuni& mParti;
    ElencoSpedizioni mElenco;
    ChiaveRicerca mNumero;
    ChiaveRicerca mRiferimento;
    /// What a search waits for the branch with; null when none does.
    ChiaveRicerca* mSenzaFiliale = nullptr;
    Avvertenza mMotivo;
    Ripristino* mMotivoDigitato;
    Ripristino* mFilialeDigitata;
    QString mClienteLdv; ///< of the waybill on the screen
    bool mGiacente = false;
    bool mTrovata = false; ///< by the last lookup
};

} // namespace giacenza
