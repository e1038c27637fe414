#pragma once

#include "grappolo/giornale.h"

namespace giacenza::prove {

/// What a clerk saw.
struct Detto
{
    bool premuto = false; ///< the case came up, and the button was pressed
    QString giacenza;     ///< the number of the held shipment on the screen
    QStringList messaggi;
    QString stato;
};

/// What a clerk makes of it; for a save with its notice, two lines.
QList<Voce> capisci(Lavoro lavoro, const Detto& detto);

} // namespace giacenza::prove
