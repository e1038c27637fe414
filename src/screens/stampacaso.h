#pragma once

#include "data/istruzioni.h"
#include "screens/schermata.h"

#include <giacenza/ModuloStampa.h>

namespace giacenza {

/// What is said of a document: once it was produced ("%1": its key), and when it was not.
struct TestiStampa
{
    QString prodotto;
    QString nonProdotto;
};

/// Has a document of a held shipment printed, and tells how that went.
void stampaCaso(Schermata& schermata, TipoDocumento tipo, const ChiaveGiacenza& caso,
                const std::array<QString, 4>& didascalie, const TestiStampa& testi);

} // namespace giacenza
