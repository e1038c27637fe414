#include "database/sessione.h"

#include <QList>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace giacenza::odbc {

namespace {

/// Whether a connection string names a keyword.
bool nomina(QStringView stringa, QStringView chiave)
{
    const auto voci = stringa.split(u';');
    return std::any_of(voci.begin(), voci.end(), [chiave](QStringView voce) {
        return voce.left(voce.indexOf(u'=')).trimmed().compare(chiave, Qt::CaseInsensitive) == 0;
    });
}

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

    /// The first columns of the first row.
    template<int Quante>
    std::array<SQLINTEGER, Quante> numeri(const QString& testo)
    {
        esegui(testo);
        verifica(SQLFetch(mManiglia), SQL_HANDLE_STMT, mManiglia, testo);
        std::array<SQLINTEGER, Quante> valori{};
        for (std::size_t i = 0; i < valori.size(); ++i) {
            SQLLEN lunghezza = 0;
            verifica(SQLGetData(mManiglia, static_cast<SQLUSMALLINT>(i + 1), SQL_C_SLONG, &valori[i],
                                sizeof valori[i], &lunghezza),
                     SQL_HANDLE_STMT, mManiglia, testo);
        }
        return valori;
    }

private:
    SQLHSTMT mManiglia = SQL_NULL_HSTMT;
};

/// How the server tells names apart, and whether it is one of a group.
std::array<SQLINTEGER, 2> natura(SQLHDBC collegamento)
{
    constexpr int variabileIgnota = 1193;
    try {
        return Passaggio(collegamento).numeri<2>(u"select @@lower_case_table_names, @@wsrep_on"_s);
    } catch (const ErroreDatabase& errore) {
        if (errore.codiceNativo() != variabileIgnota)
            throw;
        // A server that was built without groups.
        return {Passaggio(collegamento).numeri<1>(u"select @@lower_case_table_names"_s)[0], 0};
    }
}

void rifiutaNomiPerMaiuscole(SQLINTEGER nomi)
{
    // The statements write one table's name now in capitals, now not. Without this check the first of them
    // would fail with a table that "does not exist", in front of an operator who can see it.
    if (nomi != 0)
        return;
    throw ErroreDatabase(u"HY000"_s, 0,
                         u"Il server MariaDB distingue maiuscole e minuscole nei nomi delle tabelle. "
                         "Va configurato con lower_case_table_names=1."_s);
}

} // namespace

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

Dialetto dialettoDi(SQLHDBC collegamento)
{
    std::array<char, 64> nome{};
    SQLSMALLINT lunghezza = 0;
    verifica(SQLGetInfo(collegamento, SQL_DBMS_NAME, nome.data(), static_cast<SQLSMALLINT>(nome.size()),
                        &lunghezza),
             SQL_HANDLE_DBC, collegamento);
    const QString dbms = QString::fromUtf8(nome.data());
    if (dbms.contains(u"maria"_s, Qt::CaseInsensitive))
        return Dialetto::mariadb;
    if (dbms.contains(u"sqlite"_s, Qt::CaseInsensitive))
        return Dialetto::sqlite;
    return Dialetto::altro;
}

bool preparaSessione(SQLHDBC collegamento, Dialetto dialetto, const Limiti& limiti)
{
    // Not told to the tracer: it belongs to the opening.
    // Reading its row matters: with StepAPI the driver runs nothing before the first row is asked for.
    if (dialetto == Dialetto::sqlite)
        Passaggio(collegamento).numeri<1>(u"pragma busy_timeout=%1"_s.arg(limiti.attesaBlocco()));
    if (dialetto != Dialetto::mariadb)
        return false;
    const auto [nomi, gruppo] = natura(collegamento);
    rifiutaNomiPerMaiuscole(nomi);
    // The driver takes no statement time-out, the server does. Without NO_BACKSLASH_ESCAPES a pasted text
    // that ends with a backslash would leave its place. In a group (3: reading, and changing or deleting
    // rows) a node first takes in what the others have confirmed: a routine's connections may lead to two
    // nodes, and the second would not find what was just written on the first.
    Passaggio(collegamento)
        .esegui(u"SET SESSION sql_mode=concat_ws(',',nullif(@@sql_mode,''),'NO_BACKSLASH_ESCAPES'), "
                "max_statement_time=%1%2"_s.arg(QString::number(limiti.comando),
                                                gruppo != 0 ? u", wsrep_sync_wait=3"_s : QString()));
    return gruppo != 0;
}

void limitaRighe(SQLHDBC collegamento, std::optional<int> righe)
{
    // Not told to the tracer either: like the rest of the session it changes no statement.
    Passaggio(collegamento)
        .esegui(u"SET SESSION sql_select_limit=%1"_s.arg(righe ? QString::number(*righe) : u"default"_s));
}

} // namespace giacenza::odbc
