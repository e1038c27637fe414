#pragma once

#include "data/riconsegne.h"
#include "redelivery/emissione.h"
#include "screens/particomuni.h"

namespace Ui {
class frmRiconsegna;
}

namespace giacenza {

/// The issue: what the button of the re-delivery screen does, step by step. A step that fails does not stop
/// the next one; its failure stands in the status line.
class EmissioneRiconsegna
{
public:
    EmissioneRiconsegna(Schermata& schermata, const Ui::frmRiconsegna& forma, PartiComuni& parti);

    void riconsegna();

    /// Whether a waybill was handed to the issuer since the screen was opened.
    bool emessa() const { return mEmessa; }

private:
    struct Scelte
    {
        QString porto = {};
        bool controllo = false;
        bool stampa = false;
        bool annullato = true;
    };

    void esegui();
    void leggi(LdvLetta& ldv);
    Scelte chiediPorto();
    std::optional<ContoRiconsegne> contaGiacenza();
    bool accettato(const std::optional<ContoRiconsegne>& conto);
    Contesto contesto(const Scelte& scelte, const std::optional<ContoRiconsegne>& conto) const;
    void emetti(const LdvLetta& ldv, bool stampa, Contesto contesto);

    Schermata& mSchermata;
    const Ui::frmRiconsegna& mUi;
    PartiComuni& mParti;
    bool mInCorso = false;
    bool mEmessa = false;
};

} // namespace giacenza
