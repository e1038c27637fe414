#pragma once

#include "database/connessione.h"

#include <QSet>
#include <QString>

namespace giacenza {

/// The branches of the depot, as they were when the screen was loaded: for hints, which cost no statement of
/// their own.
class Filiali
{
public:
    /// Reads them. What cannot be read leaves them unknown: no hint is given then.
    void leggi(Connessione& connessione);

    /// Whether the code is known to be none: false for the empty one, and when the branches could not be
    /// read.
    bool sconosciuta(const QString& codice) const;

private:
    QSet<QString> mCodici; ///< in capitals
};

} // namespace giacenza
