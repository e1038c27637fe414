#pragma once

#include "database/valori.h"

#include <span>

namespace giacenza::sql {

/// The one place where values are pasted into statements. A value that would leave its place is not sent: the
/// error that the broken statement would have raised is raised instead (ErroreDatabase, SQLSTATE 42000).

/// A text for a place between apostrophes, unchanged. Throws when an apostrophe in it is not doubled, or when
/// it holds a NUL character; with SQLSTATE 22021 when it holds half a surrogate pair, which would be stored
/// as
/// "?".
QString testo(const QString& valore);

/// A code or a year for a bare place: digits only, unchanged. Throws otherwise, the empty text included.
QString cifre(const QString& valore);

/// An amount or a whole number for a bare place: an optional minus, digits, at most one point, unchanged.
/// Throws otherwise.
QString numero(const QString& valore);

/// A day for a place between apostrophes: "yyyy-mm-dd". Throws for an invalid date.
QString data(QDate valore);

/// A statement whose "?" are taken, from the left, by these texts: each between apostrophes, its own doubled;
/// null where there is none. Of two ways to say the same this is the quicker one: a statement with bound
/// values is compiled twice by SQLite's driver. Throws 07002 when places and texts are not as many, 42000 and
/// 22021 as testo() does.
QString conTesti(const QString& istruzione, std::span<const Valore> testi);

} // namespace giacenza::sql
