// What a connection does on its own account: preparing its session, and transactions.

#include "database/odbc.h"

using namespace Qt::StringLiterals;

namespace giacenza::odbc {

namespace {

/// A statement handle for one use while connecting, before there is anything to keep track of.
class Passaggio
{
public:
    explicit Passaggio(SQLHDBC collegamento)
    {
        verifica(SQLAllocHandle(SQL_HANDLE_STMT, collegamento, &mManiglia), SQL_HANDLE_DBC, collegamento);
    }
    Passaggio(const Passaggio&) = delete;
    Passaggio& operator=(const Passaggio&) = delete;
    ~Passaggio() { SQLFreeHandle(SQL_HANDLE_STMT, mManiglia); }

    void esegui(const QString& testo)
    {
        QByteArray utf8 = testo.toUtf8();
        verifica(SQLExecDirect(mManiglia, testoOdbc(utf8), static_cast<SQLINTEGER>(utf8.size())),
                 SQL_HANDLE_STMT, mManiglia, testo);
    }

    SQLINTEGER numero(const QString& testo)
    {
        esegui(testo);
        verifica(SQLFetch(mManiglia), SQL_HANDLE_STMT, mManiglia, testo);
        SQLINTEGER valore = 0;
        SQLLEN lunghezza = 0;
        verifica(SQLGetData(mManiglia, 1, SQL_C_SLONG, &valore, sizeof valore, &lunghezza), SQL_HANDLE_STMT,
                 mManiglia, testo);
        return valore;
    }

private:
    SQLHSTMT mManiglia = SQL_NULL_HSTMT;
};

} // namespace

void Collegamento::preparaSessione()
{
    // Not told to the tracer: it belongs to the opening.
    // Reading its row matters: with StepAPI the driver runs nothing before the first row is asked for.
    if (mDialetto == Dialetto::sqlite)
        Passaggio(mManiglia).numero(u"pragma busy_timeout=%1"_s.arg(mLimiti.attesaBlocco()));
    if (mDialetto != Dialetto::mariadb)
        return;
    rifiutaNomiPerMaiuscole();
    // The driver takes no statement time-out, the server does. Without NO_BACKSLASH_ESCAPES a pasted text
    // that ends with a backslash would leave its place.
    Passaggio(mManiglia).esegui(
        u"SET SESSION sql_mode=concat_ws(',',nullif(@@sql_mode,''),'NO_BACKSLASH_ESCAPES'), "
        "max_statement_time=%1"_s.arg(mLimiti.comando));
}

void Collegamento::rifiutaNomiPerMaiuscole()
{
    // The statements write one table's name now in capitals, now not. Without this check the first of them
    // would fail with a table that "does not exist", in front of an operator who can see it.
    if (Passaggio(mManiglia).numero(u"select @@lower_case_table_names"_s) != 0)
        return;
    throw ErroreDatabase(u"HY000"_s, 0,
                         u"Il server MariaDB distingue maiuscole e minuscole nei nomi delle tabelle. "
                         "Va configurato con lower_case_table_names=1."_s);
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
        traccia(EventoDati::annullo);
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
