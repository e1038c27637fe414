#pragma once

#include "database/connessione.h"

namespace giacenza {

/// While it lives, a select on a MariaDB connection gives no more than so many rows, as if its text ended
/// with a "limit". A setting of the session, so the text stays as it is. Does nothing on other databases,
/// whose drivers give rows as they are asked for.
class LimiteRighe
{
public:
    /// righe: 1 or more. Throws ErroreDatabase, also (08003) when the connection is closed.
    LimiteRighe(Connessione& connessione, int righe);
    LimiteRighe(const LimiteRighe&) = delete;
    LimiteRighe& operator=(const LimiteRighe&) = delete;

    /// Puts the session's setting back to the server's default. Where that fails the connection is closed:
    /// with the limit still on it another statement would lose rows without a word.
    ~LimiteRighe();

private:
    std::shared_ptr<odbc::Collegamento> mCollegamento; // none where there is nothing to put back
};

} // namespace giacenza
