#pragma once

#include "database/connessione.h"

namespace giacenza {

/// A transaction on a connection: from the constructor to conferma(), or to the destructor, which rolls back.
/// Deferred: on SQLite no lock is taken before the first write. It is done only after a confirmed commit.
class Transazione
{
public:
    /// Throws ErroreDatabase.
    explicit Transazione(Connessione& connessione);
    Transazione(const Transazione&) = delete;
    Transazione& operator=(const Transazione&) = delete;
    ~Transazione();

    /// Commits; throws ErroreDatabase, and the destructor then rolls back.
    void conferma();

private:
    std::shared_ptr<odbc::Collegamento> mCollegamento;
    bool mConfermata = false;
};

} // namespace giacenza
