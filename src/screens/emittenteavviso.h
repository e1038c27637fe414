#pragma once

#include "screens/particomuni.h"

namespace giacenza {

/// The storage notice of the held shipment on the screen: counts it, and has it printed.
class EmittenteAvviso
{
public:
    /// What differs between the screens.
    struct Differenze
    {
        /// How the notice's statements name the held shipment; may throw ErroreConversione.
        std::function<ChiaveCaso(const ChiaveGiacenza&)> chiave;
        /// Whether a notice may be issued; one that says no says why.
        std::function<bool()> ammesso = [] { return true; };
        /// A notice was counted; numero: how many there are now.
        std::function<void(int numero)> contato = [](int) {};
    };

    EmittenteAvviso(Schermata& schermata, PartiComuni& parti, QLabel* dataAvviso, Differenze differenze);

    /// Issues the notice. One that was issued today is printed again without counting.
    ///
    /// ristampa: print only, write nothing. descrizione: what replaces the description from the second notice
    /// on, where the screen names the held shipment by its own number. A failure to print is told here;
    /// throws ErroreDatabase and ErroreConversione, and nothing was written or printed then.
    void EmettiAvvisoGiacenza(bool ristampa, const QString& descrizione = {});

private:
    /// Counts the notice. Gives what is to be said of it; nothing when the screen does not admit one.
    std::optional<TestiStampa> conta(const ChiaveGiacenza& caso, const QString& descrizione);

    Schermata& mSchermata;
    PartiComuni& mParti;
    QLabel* mDataAvviso;
    Differenze mDifferenze;
};

} // namespace giacenza
