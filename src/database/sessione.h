#pragma once

#include "database/connessione.h"
#include "database/odbc.h"

#include <optional>

/// What a connection needs before its first use, and where the databases differ in it.
namespace giacenza::odbc {

/// The host's string with the limits that the drivers take from there alone. A driver ignores keywords that
/// it does not know.
QString conLimiti(const QString& stringa, const Limiti& limiti);

/// The database behind an open connection. Throws ErroreDatabase.
Dialetto dialettoDi(SQLHDBC collegamento);

/// Sets on an open connection what the strings cannot: time-outs, how texts are read, and that a node of a
/// group waits for the others. Returns whether the server is such a node. Throws ErroreDatabase, also for a
/// MariaDB server that tells table names apart by their capitals.
bool preparaSessione(SQLHDBC collegamento, Dialetto dialetto, const Limiti& limiti);

/// The most rows that a select of an open MariaDB session gives; nothing: the server's default. Throws
/// ErroreDatabase.
void limitaRighe(SQLHDBC collegamento, std::optional<int> righe);

} // namespace giacenza::odbc
