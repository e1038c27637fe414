#pragma once

#include "database/connessione.h"

/// The statements that the issue of a waybill sends, beside the new row itself. Each "?" stands for one value
/// of the caller's.
namespace giacenza::istruzioni {

/// RagioneSociale, Indirizzo, CLCAP, Localita, Provincia of a customer. "?": his code.
QString indirizzoCliente();

/// Writes the one row of the general settings as it is: who issues waits in it for who issues already.
QString codaEmittenti();

/// The highest waybill number of a year over all branches, 0 when it has none. Numbers that are not 1 to 18
/// digits do not count; the two databases need two conditions for that. "?": the year.
QString ultimoNumeroLdv(Dialetto dialetto);

/// One row where the waybills have the generated and indexed column of schema/mariadb.sql, else none: another
/// column of the name is not generated. MariaDB only.
QString colonnaNumeroLdv();

/// The same highest number from that column. "?": the year.
QString ultimoNumeroLdvDaColonna();

/// A row of the freight terms. "?": its number.
QString portoPerNumero();

} // namespace giacenza::istruzioni
