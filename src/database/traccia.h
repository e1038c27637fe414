#pragma once

#include <QString>

#include <functional>

namespace giacenza {

/// What data access is about to do on this thread.
enum class EventoDati
{
    apertura,
    istruzione,
    inizio,
    conferma,
    annullo,
    chiusura
};

/// Called just before each event; testo is the SQL text for istruzione, empty otherwise. It may throw
/// ErroreDatabase, and the event then fails as if the database had answered so (not for annullo and chiusura,
/// which cannot fail).
using Traccia = std::function<void(EventoDati evento, const QString& testo)>;

/// Sets the tracer of this thread and gives back the one before; an empty one traces nothing.
Traccia impostaTraccia(Traccia traccia);

/// Used by the classes of data access.
void traccia(EventoDati evento, const QString& testo = {});

} // namespace giacenza
