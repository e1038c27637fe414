#pragma once

#include "data/istruzioni.h"

/// The statements that read the register and add a note to it, and those that prepare it. Its tables are the
/// ones of schema/registro-*.sql; what fills it are triggers. Each "?" stands for one value of the caller's.
namespace giacenza::istruzioni {

/// progressivo, istante, utente, filiale, ldv, annoldv, fatto, prima, testo of the events of a case, in their
/// order.
QString eventiRegistro(const ChiaveGiacenza& chiave);

/// progressivo, istante, utente, autore, testo of the notes of a case, in their order.
QString noteRegistro(const ChiaveGiacenza& chiave);

/// Adds a note. "?": number and year of the case, author, text.
QString nuovaNota();

/// The last version of the register that was prepared in full, 0 for none.
QString versioneRegistro();

/// Notes that a version is prepared in full. "?": the version.
QString nuovaVersione();

/// 1 once nobody else prepares this base's register, 0 when somebody still does after ten seconds. MariaDB
/// only; the lock goes with the connection.
QString codaRegistro();

/// Makes the role that the triggers run as. MariaDB only.
QString ruoloRegistro();

/// The account of this session, as the catalog names a definer. MariaDB only.
QString contoCorrente();

/// trigger_name, definer of the register's triggers. MariaDB only.
QString triggerRegistro();

/// The accounts that may add held shipments to this base by columns, as schema/grants.sql lets the
/// workstations, or to the whole table: as a grant names them. MariaDB only.
QString contiPostazioni();

/// The accounts, but this session's own, whose rights on all tables of this base are the register's too: they
/// can change it. As a grant names them. MariaDB only.
QString contiSullaBase();

/// The name of this base. MariaDB only.
QString nomeBase();

} // namespace giacenza::istruzioni
