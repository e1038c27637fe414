#pragma once

#include "database/istruzioneodbc.h"
#include "database/lettura.h"
#include "database/recordset.h"

#include <deque>

namespace giacenza {

/// The rows of a statement that ran, read as they are asked for.
///
/// While rows are left to read, SQLite keeps the connection on the state of the database at the first of
/// them: other statements would see what was, a write would be refused once another connection wrote, and the
/// end of a transaction would cut the reading short without a word. So the connection has the rest read, and
/// kept here, before it does anything else.
class Righe : private odbc::Lettura
{
public:
    /// Reads the first row. Throws ErroreDatabase.
    Righe(std::unique_ptr<odbc::Istruzione> istruzione, int colonne, Recordset::Cursore cursore);
    Righe(const Righe&) = delete;
    Righe& operator=(const Righe&) = delete;
    ~Righe() override;

    /// No row at all; behind the last.
    bool vuote() const noexcept { return mVuote; }
    bool finite() const noexcept { return mFinite; }

    /// As Recordset has them. primo() tells by false that the way back is closed.
    bool primo();
    void avanti();

    /// Only while not finite().
    const odbc::Riga& corrente() const;

private:
    void completa() noexcept override;
    bool procura();
    bool leggi();
    void lasciaIstruzione() noexcept;

    std::shared_ptr<odbc::Collegamento> mCollegamento;
    std::unique_ptr<odbc::Istruzione> mIstruzione; // gone once the last row was read
    int mColonne;
    Recordset::Cursore mCursore;
    std::deque<odbc::Riga> mRighe;         // with soloAvanti from the current row on
    std::size_t mPosizione = 0;            // of the current row in the result
    std::optional<ErroreDatabase> mGuasto; // of a row that nobody had asked for yet
    bool mVuote = true;
    bool mFinite = true;
};

} // namespace giacenza
