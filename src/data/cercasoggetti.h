#pragma once

#include "data/istruzionisoggetti.h"
#include "database/recordset.h"

#include <vector>

namespace giacenza {

struct RichiestaSoggetti
{
    QString tabella;
    CampoSoggetto campo = CampoSoggetto::ragioneSociale;
    bool interna = false; ///< for the three texts: inside the value, not only at its start
    QString testo;        ///< as typed
};

/// One party; what is null in the database is empty.
struct Soggetto
{
    QString codice;
    QString ragioneSociale;
    QString localita;
    QString provincia;
};

/// Finds the parties of a table and reads them on demand: a search runs the statement, and rows are read only
/// as they are asked for, forwards. Its connection stays open from the first search on.
class CercaSoggetti
{
public:
    /// Starts a search in place of the one before; opens the connection when it is closed or was lost.
    ///
    /// A code that is not made of digits finds nothing, without a statement: compared with a column of
    /// numbers, "1,5" would be read as 1. Throws ErroreDatabase; Errore for a table name that is none.
    void cerca(const Accesso& accesso, const RichiestaSoggetti& richiesta);

    /// The next rows in order of name, at most as many as asked for; fewer at the end, none behind it. Throws
    /// ErroreDatabase.
    std::vector<Soggetto> leggi(int massimo);

    /// True when no row is left, before the first search too.
    bool finita() const noexcept { return mRighe.eof(); }

    /// Never fails.
    void chiudi() noexcept;

private:
    Connessione mConnessione;
    Recordset mRighe; // behind the connection: it goes first
};

} // namespace giacenza
