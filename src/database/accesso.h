#pragma once

#include "database/traccia.h"

#include <utility>

namespace giacenza {

/// What a connection is opened with. A connection string alone will do: nobody is then told of its events.
struct Accesso
{
    Accesso(QString odbc, Traccia chiTraccia = {}) : stringa(std::move(odbc)), traccia(std::move(chiTraccia))
    {}

    QString stringa; ///< ODBC connection string
    Traccia traccia; ///< kept by the connection and told of each of its events; may be empty
};

} // namespace giacenza
