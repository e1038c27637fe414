#pragma once

#include "guasti/guastiodbc.h"

#include <sql.h>
#include <sqlext.h>

#include <map>
#include <mutex>
#include <optional>
#include <set>
#include <thread>

// What the linker calls the driver manager's functions once they are wrapped.
extern "C" {
SQLRETURN __real_SQLAllocHandle(SQLSMALLINT, SQLHANDLE, SQLHANDLE*);
SQLRETURN __real_SQLDriverConnect(SQLHDBC, SQLHWND, SQLCHAR*, SQLSMALLINT, SQLCHAR*, SQLSMALLINT,
                                  SQLSMALLINT*, SQLUSMALLINT);
SQLRETURN __real_SQLDisconnect(SQLHDBC);
SQLRETURN __real_SQLSetConnectAttr(SQLHDBC, SQLINTEGER, SQLPOINTER, SQLINTEGER);
SQLRETURN __real_SQLGetConnectAttr(SQLHDBC, SQLINTEGER, SQLPOINTER, SQLINTEGER, SQLINTEGER*);
SQLRETURN __real_SQLEndTran(SQLSMALLINT, SQLHANDLE, SQLSMALLINT);
SQLRETURN __real_SQLExecDirect(SQLHSTMT, SQLCHAR*, SQLINTEGER);
SQLRETURN __real_SQLPrepare(SQLHSTMT, SQLCHAR*, SQLINTEGER);
SQLRETURN __real_SQLExecute(SQLHSTMT);
SQLRETURN __real_SQLFetch(SQLHSTMT);
SQLRETURN __real_SQLTables(SQLHSTMT, SQLCHAR*, SQLSMALLINT, SQLCHAR*, SQLSMALLINT, SQLCHAR*, SQLSMALLINT,
                           SQLCHAR*, SQLSMALLINT);
SQLRETURN __real_SQLGetDiagRec(SQLSMALLINT, SQLHANDLE, SQLSMALLINT, SQLCHAR*, SQLINTEGER*, SQLCHAR*,
                               SQLSMALLINT, SQLSMALLINT*);
}

namespace giacenza::prove {

struct Letta
{
    SQLHDBC collegamento = nullptr;
    QString testo = {};
    bool primaRiga = false; ///< still to be asked for
};

/// A statement is the same with the next number.
inline QString senzaCifre(QString testo)
{
    return testo.removeIf([](QChar c) { return c.isDigit(); });
}

/// What is known of the handles, always, and what is planted.
struct Stato
{
    std::recursive_mutex blocco;
    std::map<SQLHANDLE, Letta> istruzioni;
    std::set<SQLHDBC> morti;
    std::set<SQLHDBC> inTransazione;
    std::map<SQLHANDLE, Guasto> risposte; ///< that the next question for diagnostics gets

    std::optional<std::thread::id> filo; ///< of whoever counts
    Fili fili = Fili::questo;
    bool sospeso = false;
    QStringList chiamate;
    qsizetype quale = -1;
    std::optional<QString> testo; ///< among whose calls quale counts; nothing: among all
    bool sempre = false;
    Guasto guasto;
    int scattati = 0;
    std::function<void()> dopoOgni;

    bool conta() const
    {
        return filo && !sospeso && (fili == Fili::tutti || filo == std::this_thread::get_id());
    }
    bool scatta(const QString& chiamata)
    {
        const qsizetype numero = (testo ? chiamate.count(*testo) : chiamate.size()) - 1;
        if (quale < 0 || numero < quale || (testo && *testo != chiamata))
            return false;
        return numero == quale ||
               (sempre && (testo || senzaCifre(chiamata) == senzaCifre(chiamate.at(quale))));
    }
};

/// The one.
Stato& statoGuasti();

/// The call fails so; said to whoever asks for diagnostics.
SQLRETURN fallita(SQLHANDLE maniglia, const Guasto& guasto);

/// Makes a driver's call, or has it fail. maniglia: the handle that is asked for diagnostics. scrive: whether
/// the call can be begun and taken back; an opening and a confirmation cannot.
SQLRETURN passa(SQLHDBC collegamento, SQLHANDLE maniglia, const QString& testo, bool scrive,
                const std::function<SQLRETURN()>& vera);

} // namespace giacenza::prove
