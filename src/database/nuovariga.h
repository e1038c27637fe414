#pragma once

#include "database/connessione.h"
#include "database/nomicolonne.h"
#include "database/valori.h"

#include <utility>
#include <vector>

namespace giacenza {

/// A row to be added to a table: its columns take their table defaults until set.
class NuovaRiga
{
public:
    /// Opens the table ("select * from " + tabella): its columns are described, no row is read and nothing is
    /// executed. Throws ErroreDatabase.
    NuovaRiga(Connessione& connessione, const QString& tabella);

    /// The most characters that a column holds, as the driver tells; 0 where it does not. Throws
    /// ErroreDatabase 42S22 for an unknown column.
    qint64 larghezza(const QString& colonna) const;

    /// Columns are found by name without case; setting one again replaces its value. Throws ErroreDatabase
    /// 42S22 for an unknown column.
    void imposta(const QString& colonna, const Valore& valore);

    /// Writes the row, only with the columns that were set, their values bound; the next one starts with none
    /// set. Throws ErroreDatabase, also (HY010) when no column was set; the values then stay.
    void aggiungi();

private:
    qsizetype trova(const QString& colonna) const;

    std::shared_ptr<odbc::Collegamento> mCollegamento;
    QString mTabella;
    QString mIstruzione;
    NomiColonne mColonne;
    std::vector<qint64> mLarghezze; // by their place in mColonne, as mImpostati
    std::vector<std::pair<qsizetype, Valore>> mImpostati;
};

} // namespace giacenza
