#pragma once

#include "data/istruzioni.h"
#include "database/connessione.h"

#include <optional>

namespace giacenza {

/// Counts a notice on the held shipment, before it is printed.
///
/// connessione: where the update runs; accesso: with what the state is read, by a connection of its own.
/// descrizione: replaces GIDES1 from the second notice on, for a ChiaveGiacenza; ignored otherwise. Returns
/// the new count; nothing when none was written, since a notice was issued today or the stored date lies
/// ahead. Throws ErroreDatabase, and ErroreConversione when the stored count is no 16-bit number, the stored
/// date no date, or the description cannot be written: nothing is written then.
std::optional<qint16> contaAvviso(Connessione& connessione, const Accesso& accesso, const ChiaveCaso& chiave,
                                  QDate oggi, const QString& descrizione = {});

} // namespace giacenza
