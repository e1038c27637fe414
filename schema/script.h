#pragma once

#include "database/connessione.h"

#include <QStringList>

namespace giacenza {

/// The text of a file of this folder, as it is built in. Throws Errore when there is none of the name.
QString testoSchema(const QString& nome);

/// The statements of a script, in order, each without its last semicolon and without the comments before it.
/// A statement ends with a semicolon at the end of a line; one that begins with "create trigger" ends with
/// the line "end;". A line "delimiter X" puts X in the semicolon's place, as MariaDB's own client reads it.
QStringList istruzioniScript(const QString& testo);

/// The statements that make an empty database of a kind; none for a kind that has no schema.
QStringList istruzioniSchema(Dialetto dialetto);

/// The statements that let a MariaDB user work with the component and do nothing else.
///
/// base: the database's name; utente, host: the two halves of the account. Quoted here.
QStringList istruzioniPrivilegi(const QString& base, const QString& utente, const QString& host);

} // namespace giacenza
