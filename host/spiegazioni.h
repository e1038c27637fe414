#pragma once

#include <giacenza/Errore.h>

#include <QString>

namespace deposito {

/// What the operator reads when a screen could not be opened: the cause in plain words, then the database's
/// own text and code for whoever is called to help.
QString spiega(const giacenza::ErroreDatabase& errore);

/// The name by which the operator knows a database: the file of an embedded one, "name su server" otherwise;
/// empty when the connection string names none. Never shows the other fields: one is the password.
QString nomeArchivio(const QString& stringaConnessione);

} // namespace deposito
