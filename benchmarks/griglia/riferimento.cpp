// One run: the same rows by the driver's calls alone, into buffers that are bound once; a page is kept. As in
// the program of ours, a first connection is there already, like that of the screen that opens the search.

#include "benchmarks/quadro/esito.h"

#include <sql.h>
#include <sqlext.h>

#include <array>
#include <string>
#include <vector>

namespace {

constexpr int colonneMassime = 32;
constexpr int larghezza = 256;
constexpr long righePagina = 256;

struct Riga
{
    std::array<std::array<char, larghezza>, colonneMassime> valori;
    std::array<SQLLEN, colonneMassime> lunghezze;
};

SQLCHAR* byte(std::string& testo)
{
    return reinterpret_cast<SQLCHAR*>(testo.data());
}

bool riuscita(SQLRETURN esito, const char* chiamata)
{
    if (!SQL_SUCCEEDED(esito))
        std::fprintf(stderr, "%s: %d\n", chiamata, esito);
    return SQL_SUCCEEDED(esito);
}

/// The rows that were read, -1 after a failure.
long leggi(SQLHSTMT istruzione, long attese)
{
    SQLSMALLINT colonne = 0;
    if (!riuscita(SQLNumResultCols(istruzione, &colonne), "SQLNumResultCols"))
        return -1;
    Riga riga{};
    for (SQLUSMALLINT c = 0; c < colonne; ++c)
        if (!riuscita(SQLBindCol(istruzione, static_cast<SQLUSMALLINT>(c + 1), SQL_C_CHAR,
                                 riga.valori[c].data(), larghezza, &riga.lunghezze[c]),
                      "SQLBindCol"))
            return -1;
    std::vector<std::string> pagina;
    pagina.reserve(static_cast<std::size_t>(righePagina * colonne));
    long righe = 0;
    for (; righe < attese && SQL_SUCCEEDED(SQLFetch(istruzione)); ++righe) {
        if (righe % righePagina == 0)
            pagina.clear();
        for (std::size_t c = 0; c < static_cast<std::size_t>(colonne); ++c)
            pagina.emplace_back(riga.valori[c].data(),
                                riga.lunghezze[c] < 0 ? 0 : static_cast<std::size_t>(riga.lunghezze[c]));
    }
    return righe;
}

bool esegui(SQLHSTMT istruzione, std::string testo)
{
    return riuscita(SQLExecDirect(istruzione, byte(testo), SQL_NTS), "SQLExecDirect");
}

/// The session as the component sets it: the same statements then mean the same.
bool prepara(SQLHDBC collegamento, bool mariadb)
{
    SQLHSTMT istruzione = SQL_NULL_HSTMT;
    SQLAllocHandle(SQL_HANDLE_STMT, collegamento, &istruzione);
    bool fatta = esegui(istruzione, mariadb ? "select @@lower_case_table_names, @@wsrep_on"
                                            : "pragma busy_timeout=15000") &&
                 SQL_SUCCEEDED(SQLFetch(istruzione)) && SQL_SUCCEEDED(SQLFreeStmt(istruzione, SQL_CLOSE));
    if (mariadb)
        fatta = fatta && esegui(istruzione, "SET SESSION sql_mode=concat_ws(',',nullif(@@sql_mode,''),"
                                            "'NO_BACKSLASH_ESCAPES'), max_statement_time=30");
    SQLFreeHandle(SQL_HANDLE_STMT, istruzione);
    return fatta;
}

SQLHDBC collega(SQLHENV ambiente, std::string stringa)
{
    const bool mariadb = stringa.find("MariaDB") != std::string::npos;
    SQLHDBC collegamento = SQL_NULL_HDBC;
    SQLAllocHandle(SQL_HANDLE_DBC, ambiente, &collegamento);
    if (!riuscita(SQLDriverConnect(collegamento, nullptr, byte(stringa), SQL_NTS, nullptr, 0, nullptr,
                                   SQL_DRIVER_NOPROMPT),
                  "SQLDriverConnect"))
        return SQL_NULL_HDBC;
    return prepara(collegamento, mariadb) ? collegamento : SQL_NULL_HDBC;
}

bool unaVolta(SQLHDBC collegamento, const char* testo, long attese)
{
    SQLHSTMT istruzione = SQL_NULL_HSTMT;
    SQLAllocHandle(SQL_HANDLE_STMT, collegamento, &istruzione);
    const bool fatta = esegui(istruzione, testo) && leggi(istruzione, attese) == attese;
    SQLFreeHandle(SQL_HANDLE_STMT, istruzione);
    return fatta;
}

} // namespace

int main(int argc, char* argv[])
{
    const char* connessione = std::getenv(banco::variabileConnessione);
    // With a word more the statement runs on the connection that is there already.
    const bool aperta = argc == 5;
    if ((argc != 4 && !aperta) || !connessione)
        return EXIT_FAILURE;
    const long attese = std::atol(argv[2]);
    SQLHENV ambiente = SQL_NULL_HENV;
    SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &ambiente);
    SQLSetEnvAttr(ambiente, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0);
    const SQLHDBC schermata = collega(ambiente, connessione);

    // There a statement is none of the first: nothing has to be loaded for it any more.
    if (aperta && (!schermata || !unaVolta(schermata, argv[1], attese)))
        return EXIT_FAILURE;

    const banco::Cronometro cronometro;
    const SQLHDBC ricerca = aperta ? schermata : collega(ambiente, connessione);
    if (!schermata || !ricerca)
        return EXIT_FAILURE;
    SQLHSTMT istruzione = SQL_NULL_HSTMT;
    SQLAllocHandle(SQL_HANDLE_STMT, ricerca, &istruzione);
    const std::string limite = argv[3];
    if ((limite != "0" && !esegui(istruzione, "SET SESSION sql_select_limit=" + limite)) ||
        !esegui(istruzione, argv[1]))
        return EXIT_FAILURE;
    const long righe = leggi(istruzione, attese);
    const double millisecondi = cronometro.millisecondi();
    const int esito = banco::stampaEsito(millisecondi, righe, attese);
    SQLFreeHandle(SQL_HANDLE_STMT, istruzione);
    for (const SQLHDBC collegamento : {aperta ? SQLHDBC(SQL_NULL_HDBC) : ricerca, schermata}) {
        if (collegamento == SQL_NULL_HDBC)
            continue;
        SQLDisconnect(collegamento);
        SQLFreeHandle(SQL_HANDLE_DBC, collegamento);
    }
    SQLFreeHandle(SQL_HANDLE_ENV, ambiente);
    return esito;
}
