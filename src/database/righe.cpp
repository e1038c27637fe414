#include "database/righe.h"

#include "database/collegamento.h"

#include <utility>

namespace giacenza {

Righe::Righe(std::unique_ptr<odbc::Istruzione> istruzione, int colonne, Recordset::Cursore cursore)
    : mCollegamento(istruzione->collegamento()), mIstruzione(std::move(istruzione)), mColonne(colonne),
      mCursore(cursore)
{
    mVuote = mFinite = !leggi();
    if (mIstruzione)
        mCollegamento->aggiungiLettura(this);
}

Righe::~Righe()
{
    lasciaIstruzione();
}

void Righe::lasciaIstruzione() noexcept
{
    mCollegamento->togliLettura(this);
    mIstruzione.reset();
}

/// Reads one more row behind those that are here; false at the end.
bool Righe::leggi()
{
    if (!mIstruzione)
        return false;
    odbc::Riga riga;
    if (!mIstruzione->leggi(riga, mColonne)) {
        lasciaIstruzione();
        return false;
    }
    mRighe.push_back(std::move(riga));
    return true;
}

void Righe::completa() noexcept
{
    try {
        while (leggi()) {
        }
    } catch (const ErroreDatabase& errore) {
        // It belongs to whoever asks for the row, not to the statement that waits for the end of the reading.
        mGuasto = errore;
        lasciaIstruzione();
    }
}

/// Sees to it that the row behind the current one is here; false when there is none.
bool Righe::procura()
{
    const std::size_t prossima = mCursore == Recordset::Cursore::chiave ? mPosizione + 1 : 1;
    if (prossima < mRighe.size() || leggi())
        return true;
    if (mGuasto)
        throw *mGuasto;
    return false;
}

void Righe::avanti()
{
    if (mFinite)
        return;
    if (!procura()) {
        mFinite = true;
        return;
    }
    ++mPosizione;
    if (mCursore == Recordset::Cursore::soloAvanti)
        mRighe.pop_front();
}

bool Righe::primo()
{
    const bool tutteQui = mCursore == Recordset::Cursore::chiave || mVuote || (mPosizione == 0 && !mFinite);
    if (!tutteQui)
        return false;
    mPosizione = 0;
    mFinite = mVuote;
    return true;
}

const odbc::Riga& Righe::corrente() const
{
    return mCursore == Recordset::Cursore::chiave ? mRighe[mPosizione] : mRighe.front();
}

} // namespace giacenza
