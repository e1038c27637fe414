#pragma once

#include "data/istruzioni.h"
#include "screens/schermata.h"

#include <giacenza/ModuloStampa.h>

namespace giacenza {

/// What is said of a document: once it was produced ("%1": its key), and when it was not.
struct TestiStampa
{
    QString prodotto;
    QString nonProdotto; ///< in the box
    QString rimasto =
        {}; ///< in the status line: what was done all the same ("%1": its key); empty: as in the box
};

/// Has the documents of held shipments printed, and tells how that went. Ctrl+O opens the one printed last,
/// where the print module said which file it left.
class StampaCaso
{
public:
    explicit StampaCaso(Schermata& schermata);

    void stampa(TipoDocumento tipo, const ChiaveGiacenza& caso, const std::array<QString, 4>& didascalie,
                const TestiStampa& testi);

    /// A document that a part has made on its own: Ctrl+O opens it from now on.
    void ricorda(const QString& file) { mFile = file; }

private:
    void apri();

    Schermata& mSchermata;
    QString mFile;
};

} // namespace giacenza
