#pragma once

#include <giacenza/Errore.h>

#include <QString>

namespace deposito {

/// Why an archive does not open, and what the clerk, or who looks after the server, can do about it; Italian.
QString causa(const giacenza::ErroreDatabase& errore);

/// The driver's own words with its codes, for whoever is called to help.
QString rispostaDellArchivio(const giacenza::ErroreDatabase& errore);

/// What the operator reads when a screen could not be opened: the cause and the answer.
QString spiega(const giacenza::ErroreDatabase& errore);

/// The name by which the operator knows a database: the file of an embedded one, "name su server" otherwise;
/// empty when the connection string names none. Never shows the other fields: one is the password.
QString nomeArchivio(const QString& stringaConnessione);

} // namespace deposito
