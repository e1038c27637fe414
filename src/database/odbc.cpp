#include "database/odbc.h"

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace giacenza::odbc {

namespace {

QString diagnosi(SQLSMALLINT tipo, SQLHANDLE maniglia, SQLSMALLINT numero, QString& stato, SQLINTEGER& nativo)
{
    std::array<SQLCHAR, 6> sqlstate{};
    QByteArray testo(512, '\0');
    SQLSMALLINT lunghezza = 0;
    SQLRETURN esito = SQLGetDiagRec(tipo, maniglia, numero, sqlstate.data(), &nativo, testoOdbc(testo),
                                    static_cast<SQLSMALLINT>(testo.size()), &lunghezza);
    if (SQL_SUCCEEDED(esito) && lunghezza >= testo.size()) {
        testo.resize(lunghezza + 1);
        esito = SQLGetDiagRec(tipo, maniglia, numero, sqlstate.data(), &nativo, testoOdbc(testo),
                              static_cast<SQLSMALLINT>(testo.size()), &lunghezza);
    }
    if (!SQL_SUCCEEDED(esito))
        return {};
    stato = QString::fromLatin1(reinterpret_cast<const char*>(sqlstate.data()));
    return QString::fromUtf8(testo.constData(), std::min<qsizetype>(lunghezza, testo.size()));
}

/// Whether a connection string names a keyword.
bool nomina(QStringView stringa, QStringView chiave)
{
    const auto voci = stringa.split(u';');
    return std::any_of(voci.begin(), voci.end(), [chiave](QStringView voce) {
        return voce.left(voce.indexOf(u'=')).trimmed().compare(chiave, Qt::CaseInsensitive) == 0;
    });
}

/// The host's string with the limits that the drivers take from there alone. A driver ignores keywords that
/// it does not know.
QString conLimiti(const QString& stringa, const Limiti& limiti)
{
    // SQLite: of two time-outs the driver takes the first, so this one, in front, goes before the host's.
    QString completa =
        u"Timeout=%1;"_s.arg(std::min(limiti.connessione * 1000, limiti.attesaBlocco())) + stringa;
    // MariaDB: the driver ignores the login time-out. Without these it would wait for ever for a server that
    // takes the connection and says nothing, or whose machine went away.
    const auto aggiungi = [&](const QString& chiave, int secondi) {
        if (nomina(stringa, chiave))
            return;
        if (!completa.endsWith(u';'))
            completa += u';';
        completa += u"%1=%2"_s.arg(chiave).arg(secondi);
    };
    const int risposta = limiti.comando + limiti.connessione; // the server has stopped the statement by then
    aggiungi(u"CONN_TIMEOUT"_s, limiti.connessione);
    aggiungi(u"READ_TIMEOUT"_s, risposta);
    aggiungi(u"WRITE_TIMEOUT"_s, risposta);
    return completa;
}

/// The environment of the process. It is never freed: connections may live in objects that outlast any
/// order of destruction we could choose, and the driver manager keeps its drivers loaded with it.
SQLHENV ambiente()
{
    static const SQLHENV unico = [] {
        SQLHENV nuovo = SQL_NULL_HENV;
        if (!SQL_SUCCEEDED(SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &nuovo)))
            throw ErroreDatabase(u"HY001"_s, 0, u"Il gestore ODBC non risponde."_s);
        verifica(SQLSetEnvAttr(nuovo, SQL_ATTR_ODBC_VERSION, valoreAttributo(SQL_OV_ODBC3), 0),
                 SQL_HANDLE_ENV, nuovo);
        return nuovo;
    }();
    return unico;
}

} // namespace

void verifica(SQLRETURN esito, SQLSMALLINT tipo, SQLHANDLE maniglia, const QString& istruzione)
{
    if (SQL_SUCCEEDED(esito))
        return;
    QString primoStato = u"HY000"_s;
    SQLINTEGER primoNativo = 0;
    QString testi;
    for (SQLSMALLINT numero = 1;; ++numero) {
        QString stato;
        SQLINTEGER nativo = 0;
        const QString testo = diagnosi(tipo, maniglia, numero, stato, nativo);
        if (stato.isEmpty())
            break;
        if (numero == 1) {
            primoStato = stato;
            primoNativo = nativo;
        } else {
            testi += u'\n';
        }
        testi += testo;
    }
    if (testi.isEmpty())
        testi = u"Il driver ODBC ha risposto %1 senza dire perché."_s.arg(esito);
    throw ErroreDatabase(primoStato, primoNativo, testi, istruzione);
}

Collegamento::Collegamento(const QString& stringa, const Limiti& limiti) : mLimiti(limiti)
{
    traccia(EventoDati::apertura);
    verifica(SQLAllocHandle(SQL_HANDLE_DBC, ambiente(), &mManiglia), SQL_HANDLE_ENV, ambiente());
    try {
        connetti(stringa);
        riconosciDialetto();
        preparaSessione();
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

void Collegamento::riconosciDialetto()
{
    std::array<char, 64> nome{};
    SQLSMALLINT lunghezza = 0;
    verifica(
        SQLGetInfo(mManiglia, SQL_DBMS_NAME, nome.data(), static_cast<SQLSMALLINT>(nome.size()), &lunghezza),
        SQL_HANDLE_DBC, mManiglia);
    const QString dbms = QString::fromUtf8(nome.data());
    if (dbms.contains(u"maria"_s, Qt::CaseInsensitive))
        mDialetto = Dialetto::mariadb;
    else if (dbms.contains(u"sqlite"_s, Qt::CaseInsensitive))
        mDialetto = Dialetto::sqlite;
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
        traccia(EventoDati::chiusura);
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

} // namespace giacenza::odbc
