#pragma once

#include <QString>

#include <functional>

namespace giacenza {

/// What a connection is about to do.
enum class EventoDati
{
    apertura,
    istruzione,
    inizio,
    conferma,
    annullo,
    chiusura
};

/// Called just before each event of a connection; testo is the SQL text for istruzione, empty otherwise. It
/// may throw ErroreDatabase, and the event then fails as if the database had answered so (not for annullo and
/// chiusura, which cannot fail).
using Traccia = std::function<void(EventoDati evento, const QString& testo)>;

} // namespace giacenza
