#pragma once

#include "database/connessione.h"

namespace giacenza::dimostrazione {

/// Why a database is left as it is: it is not of a known kind, or not in the state that was asked for. The
/// text is Italian, for who runs the generator.
class Rifiuto : public Errore
{
public:
    using Errore::Errore;
};

/// Throws Rifiuto when a table of ours is already there.
void pretendiSenzaTabelle(Connessione& connessione);
/// Throws Rifiuto when a table is missing or holds a row.
void pretendiTabelleVuote(Connessione& connessione);

/// Makes the tables and, on MariaDB, their indexes with them. Throws ErroreDatabase.
void creaTabelle(Connessione& connessione);
/// Makes the indexes that stand by themselves: rows go in faster before they are there. Throws
/// ErroreDatabase.
void creaIndici(Connessione& connessione);
/// Takes away the tables that creaTabelle() made, where a roll-back does not; never fails.
void togliTabelle(Connessione& connessione) noexcept;

/// After the rows are there: the statistics by which statements find their index and, on SQLite, the
/// write-ahead journal, which stays with the file. Throws ErroreDatabase.
void aggiornaStatistiche(Connessione& connessione);
void attivaGiornale(Connessione& connessione);

} // namespace giacenza::dimostrazione
