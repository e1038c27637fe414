#pragma once

#include "data/istruzioni.h"

#include <optional>

namespace giacenza {

/// What the barcode of a waybill holds: branch, number and year with a hyphen between them, "MI-4711-2026". A
/// hyphen or backslash inside branch or number has a backslash before it, so that the text names one waybill.
/// Empty when there is no number.
QString codiceLdv(const QString& filiale, const QString& numero, const QString& anno);

/// The waybill that such a text names; nothing for another text. A branch may be empty, as a letter prints
/// none.
std::optional<ChiaveSpedizione> leggiCodiceLdv(const QString& codice);

} // namespace giacenza
