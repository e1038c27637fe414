#pragma once

#include "data/salvataggio.h"
#include "registration/ricercaldv.h"
#include "screens/emittenteavviso.h"

namespace giacenza {

/// The save button of the registration screen: admission, the new held shipment, its first notice.
class SalvaGiacenza
{
public:
    SalvaGiacenza(Schermata& schermata, const Ui::frmGiacenza& forma, PartiComuni& parti, RicercaLdv& ricerca,
                  EmittenteAvviso& avviso);

    void salva();

private:
    bool ammessa(Ammissione ammissione);
    void inserisci();
    /// Throws ErroreConversione for a date or an amount that is none.
    DatiGiacenza dati() const;
    void avvisa();

    Schermata& mSchermata;
    const Ui::frmGiacenza& mUi;
    PartiComuni& mParti;
    RicercaLdv& mRicerca;
    EmittenteAvviso& mAvviso;
};

} // namespace giacenza
