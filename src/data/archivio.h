#pragma once

#include "database/accesso.h"

namespace giacenza {

/// The way to the host's archive: the connection string that it gave, and whoever traces this thread.
Accesso accessoHost();

/// The same with a connection string that came another way. The tracer is looked up at each event, so it may
/// be set and taken away while connections are open.
Accesso accessoTracciato(const QString& stringa);

/// Sets the tracer of this thread and gives back the one before; an empty one traces nothing.
Traccia impostaTraccia(Traccia traccia);

} // namespace giacenza
