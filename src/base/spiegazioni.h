#pragma once

#include <giacenza/Errore.h>

namespace giacenza {

/// A failure of the database in one Italian sentence for the operator, by its code; for a code that none is
/// known for, a sentence that says no more than that it failed. The driver's own words are for whoever mends
/// it.
QString spiega(const ErroreDatabase& errore);

/// The same for any failure: what is not the database's has its own Italian text.
QString spiega(const Errore& errore);

/// Whether the connection was lost while a statement of its own was writing: then nobody knows whether it
/// did. In a transaction it did not.
bool forseScritto(const Errore& errore);

} // namespace giacenza
