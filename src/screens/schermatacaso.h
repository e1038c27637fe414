#pragma once

#include "data/istruzioni.h"
#include "screens/schermata.h"
#include <giacenza/ModuloStampa.h>

#include <optional>

namespace giacenza {

/// What the screens that issue storage notices share: the held shipment on the screen, its notice, and the
/// printing of its documents. By what a screen names the held shipment in the database is an override.
class SchermataCaso : public Schermata
{
    Q_OBJECT

protected:
    using Schermata::Schermata;

    /// Issues the storage notice of the held shipment on the screen: counts it, and has it printed. One that
    /// was issued today is printed again without counting.
    ///
    /// ristampa: print only, write nothing. descrizione: what replaces the description from the second notice
    /// on, where the screen names the held shipment by its own number. A failure to print is told here;
    /// throws ErroreDatabase and ErroreConversione, and nothing was written or printed then.
    void EmettiAvvisoGiacenza(bool ristampa, const QString& descrizione = {});

    /// How the notice's statements name the held shipment.
    virtual ChiaveCaso chiaveAvviso(const ChiaveGiacenza& caso) const = 0;
    /// Whether a notice may be issued; one that says no says why.
    virtual bool avvisoAmmesso() { return true; }
    /// A notice was counted; numero: how many there are now.
    virtual void avvisoContato([[maybe_unused]] int numero) {}

    /// The held shipment on the screen; when there is none the status line says so.
    std::optional<ChiaveGiacenza> casoMostrato();

    /// What is said of a document: once it was produced ("%1": its key), and when it was not.
    struct TestiStampa
    {
        QString prodotto;
        QString nonProdotto;
    };

    /// Has a document of the held shipment printed, and tells how that went.
    void stampaCaso(TipoDocumento tipo, const ChiaveGiacenza& caso, const std::array<QString, 4>& didascalie,
                    const TestiStampa& testi);
};

} // namespace giacenza
