#pragma once

#include "database/connessione.h"

namespace giacenza {

/// The way to the host's archive: the connection string that it gave, and whoever traces this thread. Throws
/// ErroreDatabase (08001) when the string names a file of SQLite that is not there, which the driver would
/// make, empty.
Accesso accessoHost();

/// Throws ErroreDatabase (42S02), naming them, when tables that the screens work on are not there or not this
/// user's to see. Asks the driver's catalog: no statement.
void verificaTabelle(Connessione& connessione);

/// The same with a connection string that came another way. The tracer is looked up at each event, so it may
/// be set and taken away while connections are open.
Accesso accessoTracciato(const QString& stringa);

/// Sets the tracer of this thread and gives back the one before; an empty one traces nothing.
Traccia impostaTraccia(Traccia traccia);

} // namespace giacenza
