#pragma once

#include "database/comando.h"
#include "schema/dati/tabelle.h"

#include <optional>

namespace giacenza::dimostrazione {

/// Adds many rows to a table, some with each statement: fewer journeys to a server.
class Scrittore
{
public:
    Scrittore(Connessione& connessione, const Tabella& tabella);

    /// The row may be written only with a later one. Throws ErroreDatabase.
    void aggiungi(const Riga& riga);
    /// Writes what is still waiting. Throws ErroreDatabase.
    void finisci();

private:
    QString istruzione(std::size_t righe) const;

    Connessione& mConnessione;
    const Tabella& mTabella;
    std::optional<Comando> mComando;
    std::vector<Valore> mValori;
    std::size_t mPiena; ///< values of a full statement
};

} // namespace giacenza::dimostrazione
