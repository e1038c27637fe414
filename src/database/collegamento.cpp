#include "database/collegamento.h"

#include "database/istruzioneodbc.h"
#include "database/sessione.h"
#include "database/stringaconnessione.h"

#include <QFile>

#include <cerrno>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace giacenza::odbc {

namespace {

/// One call of the system: a press opens connections while the operator waits.
bool scrivibile(const QString& file)
{
    return ::access(QFile::encodeName(file).constData(), W_OK) == 0;
}

} // namespace

Collegamento::Collegamento(const Accesso& accesso, const Limiti& limiti)
    : mTraccia(accesso.traccia), mLimiti(limiti)
{
    racconta(EventoDati::apertura);
    verifica(SQLAllocHandle(SQL_HANDLE_DBC, ambiente(), &mManiglia), SQL_HANDLE_ENV, ambiente());
    try {
        connetti(accesso.stringa);
        mDialetto = dialettoDi(mManiglia);
        mFile = fileSqlite(accesso.stringa);
        mSolaLettura = !mFile.isEmpty() && !scrivibile(mFile) && errno != ENOENT;
        mNelGruppo = preparaSessione(mManiglia, mDialetto, mLimiti);
    } catch (...) {
        libera();
        throw;
    }
}

Collegamento::~Collegamento()
{
    chiudi();
}

void Collegamento::connetti(const QString& stringa)
{
    verifica(SQLSetConnectAttr(mManiglia, SQL_ATTR_LOGIN_TIMEOUT,
                               valoreAttributo(static_cast<SQLULEN>(mLimiti.connessione)), 0),
             SQL_HANDLE_DBC, mManiglia);
    QByteArray utf8 = conLimiti(stringa, mLimiti).toUtf8();
    verifica(SQLDriverConnect(mManiglia, nullptr, testoOdbc(utf8), SQL_NTS, nullptr, 0, nullptr,
                              SQL_DRIVER_NOPROMPT),
             SQL_HANDLE_DBC, mManiglia);
}

void Collegamento::racconta(EventoDati evento, const QString& testo) const
{
    if (mTraccia)
        mTraccia(evento, testo);
}

void Collegamento::libera() noexcept
{
    SQLDisconnect(mManiglia);
    SQLFreeHandle(SQL_HANDLE_DBC, mManiglia);
    mManiglia = SQL_NULL_HDBC;
}

void Collegamento::chiudi() noexcept
{
    if (!mManiglia)
        return;
    annulla();
    if (!mManiglia) // annulla() could not roll back and closed
        return;
    try {
        racconta(EventoDati::chiusura);
    } catch (...) {
        // Closing cannot fail.
    }
    for (Istruzione* istruzione : mIstruzioni)
        istruzione->libera();
    mIstruzioni.clear();
    mLetture.clear();
    libera();
}

void Collegamento::completaLetture() noexcept
{
    // The MariaDB driver has the whole result before it gives the first row: nothing stays open there.
    if (mDialetto == Dialetto::mariadb)
        return;
    while (!mLetture.empty()) {
        Lettura* lettura = mLetture.back();
        mLetture.pop_back();
        lettura->completa();
    }
}

void Collegamento::riconosciPerdita(const ErroreDatabase& errore) noexcept
{
    // The MariaDB driver gives HY000 for some of its client's own codes of a server that is gone.
    constexpr int serverSparito = 2006;
    constexpr int serverPerso = 2013;
    const bool perso = errore.sqlstate().startsWith("08"_L1) ||
                       (mDialetto == Dialetto::mariadb &&
                        (errore.codiceNativo() == serverSparito || errore.codiceNativo() == serverPerso));
    mPerduto = mPerduto || perso;
}

void Collegamento::riconosciAttesaVana(const ErroreDatabase& errore) const
{
    if (mNelGruppo && errore.codiceNativo() == codiceAttesaVana)
        throw ErroreDatabase(u"40001"_s, codiceAttesaVana, errore.testo(), errore.istruzione());
}

void Collegamento::riconosciSolaLettura(const ErroreDatabase& errore) const
{
    // The journal of an archive needs files beside it also for reading.
    if (mSolaLettura && errore.testo().contains("unable to open database"_L1))
        throw ErroreDatabase(errore.sqlstate(), errore.codiceNativo(),
                             u"%1 (readonly database)"_s.arg(errore.testo()), errore.istruzione());
}

void Collegamento::confermaAutomatica(bool accesa)
{
    verifica(SQLSetConnectAttr(mManiglia, SQL_ATTR_AUTOCOMMIT,
                               valoreAttributo(accesa ? SQL_AUTOCOMMIT_ON : SQL_AUTOCOMMIT_OFF), 0),
             SQL_HANDLE_DBC, mManiglia);
}

void Collegamento::terminaTransazione(SQLSMALLINT come)
{
    verifica(SQLEndTran(SQL_HANDLE_DBC, mManiglia, come), SQL_HANDLE_DBC, mManiglia);
}

QByteArray Collegamento::base() const
{
    if (mDialetto != Dialetto::mariadb)
        return {};
    QByteArray nome(256, '\0');
    SQLSMALLINT lunghezza = 0;
    const SQLRETURN esito = SQLGetInfo(mManiglia, SQL_DATABASE_NAME, nome.data(),
                                       static_cast<SQLSMALLINT>(nome.size()), &lunghezza);
    return SQL_SUCCEEDED(esito) ? QByteArray(nome.constData()) : QByteArray();
}

bool Collegamento::viva() noexcept
{
    SQLUINTEGER morta = SQL_CD_FALSE;
    const SQLRETURN esito =
        SQLGetConnectAttr(mManiglia, SQL_ATTR_CONNECTION_DEAD, &morta, sizeof morta, nullptr);
    // A driver that does not say is believed until a statement fails.
    if (SQL_SUCCEEDED(esito) && morta == SQL_CD_TRUE)
        mPerduto = true;
    // SQLite has its file as the disk was when it opened it, and goes on so when the disk can be written
    // again.
    if (mSolaLettura && scrivibile(mFile))
        mPerduto = true;
    return aperto();
}

void Collegamento::inizia()
{
    if (mInTransazione)
        throw ErroreDatabase(u"25001"_s, 0, u"Una transazione è già aperta."_s);
    esegui(EventoDati::inizio, {}, [this] { confermaAutomatica(false); });
    mInTransazione = true;
}

void Collegamento::conferma()
{
    if (!mInTransazione || !aperto())
        throw ErroreDatabase(u"25000"_s, 0, u"La transazione non è più aperta."_s);
    esegui(EventoDati::conferma, {}, [this] { terminaTransazione(SQL_COMMIT); });
    mInTransazione = false;
    try {
        confermaAutomatica(true);
    } catch (const ErroreDatabase&) {
        // What was asked for is committed. A connection that cannot go back is not used any more.
        chiudi();
    }
}

void Collegamento::annulla() noexcept
{
    if (!mInTransazione)
        return;
    mInTransazione = false;
    completaLetture();
    try {
        racconta(EventoDati::annullo);
    } catch (...) {
        // Rolling back cannot fail.
    }
    try {
        terminaTransazione(SQL_ROLLBACK);
        confermaAutomatica(true);
    } catch (...) {
        mPerduto = true;
        chiudi();
    }
}

} // namespace giacenza::odbc
