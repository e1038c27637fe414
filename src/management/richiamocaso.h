#pragma once

#include "screens/elencospedizioni.h"
#include "screens/particomuni.h"

namespace Ui {
class frmGestGia;
}

namespace giacenza {

/// Brings a held shipment up on the management screen, by its number and date or from the list of a
/// customer's.
class RichiamoCaso
{
public:
    /// tolto: called when there is no case on the screen any more.
    RichiamoCaso(Schermata& schermata, const Ui::frmGestGia& forma, PartiComuni& parti,
                 std::function<void()> tolto);

    /// Which fields a held shipment is sought by. Which one the retrieval goes by is the check box's alone.
    void ImpostaModoRicerca(bool perCliente);

    /// Brings up the held shipment of a number and a date, "dd/mm/yyyy", as if the operator had typed them;
    /// nothing when one is missing.
    void consegna(const QString& numero, const QString& data);

private:
    void collega();
    void PulisciCampi();
    void pulisciFuoriDa(const QList<QWidget*>& tenuti);
    void pulisciEsito();
    void richiama();
    void richiamaPerNumero();
    void richiamaPerCliente();
    /// What is left on the screen of a case that cannot be brought up: what it was sought by.
    void pulisciNonTrovata();
    bool mostra(const QString& istruzione);
    Seguito convalidaDataGiace();
    /// Key fields cannot be typed in while they name the case on the screen.
    void bloccaChiave(bool bloccata);

    Schermata& mSchermata;
    const Ui::frmGestGia& mUi;
    PartiComuni& mParti;
    ElencoSpedizioni mElenco;
    std::function<void()> mTolto;
    bool mRichiamando = false; ///< the focus moves because a case was brought up
};

} // namespace giacenza
