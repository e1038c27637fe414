#pragma once

#include <QStringView>

namespace giacenza {

/// The value of a keyword of a connection string ("DATABASE"; any case), without its braces; empty when the
/// string does not name it. A view of the string.
QStringView voceConnessione(QStringView stringa, QStringView chiave);

} // namespace giacenza
