#pragma once

#include <QStringList>

namespace giacenza {

/// An address on one line: the parts that are not empty, a blank between them, and the province in brackets:
/// "Via Roma 1 Milano (MI)".
QString inUnaRiga(const QStringList& parti, const QString& provincia);

} // namespace giacenza
