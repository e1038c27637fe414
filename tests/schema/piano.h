#pragma once

#include "support/bancadati.h"

namespace giacenza::prove {

/// How a table is read.
struct AccessoTabella
{
    QString tabella;     ///< in lower case
    bool tutta = false;  ///< every row, or every entry of an index
    QStringList colonne; ///< by which the index is entered, in lower case
};

/// How a database means to find the rows of a statement.
struct Piano
{
    QList<AccessoTabella> accessi;
    bool ordina = false; ///< it gathers the rows and sorts them before it gives the first
    /// The answer is one end of an index, taken before anything is read: no table is named. MariaDB only.
    bool soloDaIndice = false;
    QString testo; ///< as the database tells it

    /// Tables that are read, and those that are read whole.
    QStringList tabelle() const;
    QStringList scansioni() const;
};

/// Asks the database; the statement is not run. Throws ErroreDatabase.
Piano leggiPiano(Connessione& connessione, const QString& istruzione, std::span<const Valore> parametri = {});

} // namespace giacenza::prove
