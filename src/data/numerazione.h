#pragma once

#include "database/connessione.h"

namespace giacenza {

/// Takes the next number for a held shipment from the counter of the settings table: reads it, adds one,
/// writes it back. One series for all years and branches; a number that is taken is never given back.
///
/// There is no lock between reading and writing: two workstations at the same instant can get the same
/// number, and the unique key of the held shipments lets one of them in. Throws ErroreDatabase, also when
/// the table has no row (02000) and when the counter is null (22002), no whole number (22018) or too large
/// for 64 bits (22003).
QString ProssimoNumGiacenza(Connessione& connessione);

} // namespace giacenza
