#pragma once

#include <QString>

namespace giacenza {

/// The value of a keyword of a connection string ("DATABASE"; any case), without its braces; empty when the
/// string does not name it. A view of the string.
QStringView voceConnessione(QStringView stringa, QStringView chiave);

/// The file that a connection string of SQLite's driver names; empty for another driver, and for one in
/// memory.
QString fileSqlite(const QString& stringa);

} // namespace giacenza
