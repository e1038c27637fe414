#include "benchmarks/chiave/riferimento/base.h"

#include "benchmarks/quadro/esito.h"

#include <cstdarg>
#include <stdexcept>

namespace nudo {

namespace {

std::vector<std::string>* registro = nullptr;

void segna(const std::string& evento)
{
    if (registro)
        registro->push_back(evento);
}

void controlla(SQLRETURN esito, SQLSMALLINT tipo, SQLHANDLE maniglia)
{
    if (SQL_SUCCEEDED(esito))
        return;
    SQLCHAR stato[6] = "";
    SQLCHAR motivo[512] = "";
    SQLINTEGER nativo = 0;
    SQLGetDiagRec(tipo, maniglia, 1, stato, &nativo, motivo, sizeof motivo, nullptr);
    throw std::runtime_error(reinterpret_cast<char*>(motivo));
}

SQLCHAR* byte(const std::string& testo)
{
    return const_cast<SQLCHAR*>(reinterpret_cast<const SQLCHAR*>(testo.data()));
}

SQLHENV ambiente()
{
    static const SQLHENV unico = [] {
        SQLHENV nuovo = SQL_NULL_HENV;
        SQLAllocHandle(SQL_HANDLE_ENV, SQL_NULL_HANDLE, &nuovo);
        SQLSetEnvAttr(nuovo, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0);
        return nuovo;
    }();
    return unico;
}

/// A statement's handle, freed at its end.
class Maniglia
{
public:
    explicit Maniglia(SQLHDBC base)
    {
        controlla(SQLAllocHandle(SQL_HANDLE_STMT, base, &mManiglia), SQL_HANDLE_DBC, base);
    }
    Maniglia(const Maniglia&) = delete;
    Maniglia& operator=(const Maniglia&) = delete;
    ~Maniglia() { SQLFreeHandle(SQL_HANDLE_STMT, mManiglia); }

    operator SQLHSTMT() const { return mManiglia; }

    void esegui(const std::string& testo) const
    {
        const SQLRETURN esito = SQLExecDirect(mManiglia, byte(testo), static_cast<SQLINTEGER>(testo.size()));
        if (esito != SQL_NO_DATA)
            controlla(esito, SQL_HANDLE_STMT, mManiglia);
    }

    void lega(const std::vector<std::string>& parametri)
    {
        mLunghezze.resize(parametri.size());
        for (std::size_t i = 0; i < parametri.size(); ++i) {
            mLunghezze[i] = static_cast<SQLLEN>(parametri[i].size());
            controlla(SQLBindParameter(mManiglia, static_cast<SQLUSMALLINT>(i + 1), SQL_PARAM_INPUT,
                                       SQL_C_CHAR, SQL_VARCHAR, parametri[i].size() + 1, 0,
                                       byte(parametri[i]), mLunghezze[i], &mLunghezze[i]),
                      SQL_HANDLE_STMT, mManiglia);
        }
    }

    Valore valore(int colonna) const
    {
        char letto[4096];
        SQLLEN lunghezza = 0;
        controlla(SQLGetData(mManiglia, static_cast<SQLUSMALLINT>(colonna), SQL_C_CHAR, letto, sizeof letto,
                             &lunghezza),
                  SQL_HANDLE_STMT, mManiglia);
        if (lunghezza == SQL_NULL_DATA)
            return std::nullopt;
        return std::string(letto, static_cast<std::size_t>(lunghezza));
    }

private:
    SQLHSTMT mManiglia = SQL_NULL_HSTMT;
    std::vector<SQLLEN> mLunghezze;
};

} // namespace

void registra(std::vector<std::string>* dove)
{
    registro = dove;
}

bool mariadb()
{
    return std::string(std::getenv(banco::variabileConnessione)).find("MariaDB") != std::string::npos;
}

std::string testo(const char* modello, ...)
{
    char scritto[4096];
    va_list valori;
    va_start(valori, modello);
    std::vsnprintf(scritto, sizeof scritto, modello, valori);
    va_end(valori);
    return scritto;
}

void Base::apri()
{
    if (mManiglia)
        return;
    segna("connect");
    const std::string stringa = std::getenv(banco::variabileConnessione);
    controlla(SQLAllocHandle(SQL_HANDLE_DBC, ambiente(), &mManiglia), SQL_HANDLE_ENV, ambiente());
    controlla(SQLDriverConnect(mManiglia, nullptr, byte(stringa), SQL_NTS, nullptr, 0, nullptr,
                               SQL_DRIVER_NOPROMPT),
              SQL_HANDLE_DBC, mManiglia);
    preparaSessione();
}

void Base::preparaSessione()
{
    if (mariadb()) {
        const Maniglia domanda(mManiglia);
        domanda.esegui("select @@lower_case_table_names, @@wsrep_on");
        SQLFetch(domanda);
        domanda.valore(1);
        const Maniglia modo(mManiglia);
        modo.esegui("SET SESSION sql_mode=concat_ws(',',nullif(@@sql_mode,''),'NO_BACKSLASH_ESCAPES'), "
                    "max_statement_time=30");
        return;
    }
    const Maniglia attesa(mManiglia);
    attesa.esegui("pragma busy_timeout=15000");
    SQLFetch(attesa);
}

void Base::chiudi()
{
    if (!mManiglia)
        return;
    segna("disconnect");
    SQLDisconnect(mManiglia);
    SQLFreeHandle(SQL_HANDLE_DBC, mManiglia);
    mManiglia = SQL_NULL_HDBC;
}

void Base::esegui(const std::string& testo)
{
    segna(testo);
    const Maniglia maniglia(mManiglia);
    maniglia.esegui(testo);
}

std::vector<Riga> Base::leggi(const std::string& testo, const std::vector<int>& colonne,
                              const std::vector<std::string>& parametri)
{
    segna(testo);
    Maniglia maniglia(mManiglia);
    maniglia.lega(parametri);
    maniglia.esegui(testo);
    std::vector<Riga> righe;
    while (SQL_SUCCEEDED(SQLFetch(maniglia))) {
        Riga& riga = righe.emplace_back();
        riga.reserve(colonne.size());
        for (const int colonna : colonne)
            riga.push_back(maniglia.valore(colonna));
    }
    return righe;
}

std::vector<std::string> Base::descrivi(const std::string& testo)
{
    segna(testo);
    const Maniglia maniglia(mManiglia);
    controlla(SQLPrepare(maniglia, byte(testo), static_cast<SQLINTEGER>(testo.size())), SQL_HANDLE_STMT,
              maniglia);
    SQLSMALLINT quante = 0;
    controlla(SQLNumResultCols(maniglia, &quante), SQL_HANDLE_STMT, maniglia);
    std::vector<std::string> nomi;
    for (SQLSMALLINT i = 1; i <= quante; ++i) {
        SQLCHAR nome[128] = "";
        SQLSMALLINT tipo = 0;
        SQLSMALLINT cifre = 0;
        SQLSMALLINT nulla = 0;
        SQLULEN larghezza = 0;
        SQLDescribeCol(maniglia, static_cast<SQLUSMALLINT>(i), nome, sizeof nome, nullptr, &tipo, &larghezza,
                       &cifre, &nulla);
        nomi.emplace_back(reinterpret_cast<char*>(nome));
    }
    return nomi;
}

void Base::inserisci(const std::string& testo, const std::vector<std::string>& parametri)
{
    segna(testo);
    Maniglia maniglia(mManiglia);
    maniglia.lega(parametri);
    maniglia.esegui(testo);
}

void Base::inizia()
{
    segna("begin");
    SQLSetConnectAttr(mManiglia, SQL_ATTR_AUTOCOMMIT, reinterpret_cast<SQLPOINTER>(SQL_AUTOCOMMIT_OFF), 0);
}

void Base::conferma()
{
    segna("commit");
    controlla(SQLEndTran(SQL_HANDLE_DBC, mManiglia, SQL_COMMIT), SQL_HANDLE_DBC, mManiglia);
    SQLSetConnectAttr(mManiglia, SQL_ATTR_AUTOCOMMIT, reinterpret_cast<SQLPOINTER>(SQL_AUTOCOMMIT_ON), 0);
}

} // namespace nudo
