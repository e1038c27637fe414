#pragma once

#include <QByteArray>

namespace giacenza {

/// All that the library publishes, as JSON: what giacenza_descrizione() returns.
QByteArray descrizione();

} // namespace giacenza
