// What the linker puts in place of the driver manager's functions.

#include "guasti/statoguasti.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

using namespace giacenza::prove;

namespace {

Stato& stato()
{
    return statoGuasti();
}

/// Of the thread that works with it; others add and take away theirs.
Letta& letta(SQLHSTMT istruzione)
{
    const std::lock_guard chiuso(stato().blocco);
    return stato().istruzioni[istruzione];
}

template<class Vera>
SQLRETURN esegui(SQLHSTMT istruzione, Vera vera)
{
    letta(istruzione).primaRiga = true;
    return passa(letta(istruzione).collegamento, istruzione, letta(istruzione).testo, true, vera);
}

} // namespace

extern "C" {

SQLRETURN __wrap_SQLAllocHandle(SQLSMALLINT tipo, SQLHANDLE da, SQLHANDLE* nuova)
{
    const SQLRETURN esito = __real_SQLAllocHandle(tipo, da, nuova);
    if (tipo == SQL_HANDLE_STMT && SQL_SUCCEEDED(esito)) {
        const std::lock_guard chiuso(stato().blocco);
        stato().istruzioni[*nuova] = {da};
    }
    return esito;
}

SQLRETURN __wrap_SQLDriverConnect(SQLHDBC collegamento, SQLHWND finestra, SQLCHAR* stringa, SQLSMALLINT lunga,
                                  SQLCHAR* intera, SQLSMALLINT spazio, SQLSMALLINT* quanta, SQLUSMALLINT come)
{
    return passa(collegamento, collegamento, u"(apertura)"_s, false, [&] {
        return __real_SQLDriverConnect(collegamento, finestra, stringa, lunga, intera, spazio, quanta, come);
    });
}

SQLRETURN __wrap_SQLDisconnect(SQLHDBC collegamento)
{
    const std::lock_guard chiuso(stato().blocco);
    stato().morti.erase(collegamento);
    stato().inTransazione.erase(collegamento);
    std::erase_if(stato().istruzioni,
                  [&](const auto& una) { return una.second.collegamento == collegamento; });
    return __real_SQLDisconnect(collegamento);
}

SQLRETURN __wrap_SQLSetConnectAttr(SQLHDBC collegamento, SQLINTEGER quale, SQLPOINTER valore,
                                   SQLINTEGER lunga)
{
    const auto vera = [&] { return __real_SQLSetConnectAttr(collegamento, quale, valore, lunga); };
    if (quale != SQL_ATTR_AUTOCOMMIT)
        return vera();
    const bool inizia = reinterpret_cast<SQLULEN>(valore) == SQL_AUTOCOMMIT_OFF;
    const SQLRETURN esito =
        passa(collegamento, collegamento, inizia ? u"(inizio)"_s : u"(fine)"_s, false, vera);
    const std::lock_guard chiuso(stato().blocco);
    if (SQL_SUCCEEDED(esito) && inizia)
        stato().inTransazione.insert(collegamento);
    if (SQL_SUCCEEDED(esito) && !inizia)
        stato().inTransazione.erase(collegamento);
    return esito;
}

SQLRETURN __wrap_SQLGetConnectAttr(SQLHDBC collegamento, SQLINTEGER quale, SQLPOINTER valore,
                                   SQLINTEGER spazio, SQLINTEGER* lunga)
{
    const std::lock_guard chiuso(stato().blocco);
    if (quale == SQL_ATTR_CONNECTION_DEAD && stato().morti.contains(collegamento)) {
        *static_cast<SQLUINTEGER*>(valore) = SQL_CD_TRUE;
        return SQL_SUCCESS;
    }
    return __real_SQLGetConnectAttr(collegamento, quale, valore, spazio, lunga);
}

SQLRETURN __wrap_SQLEndTran(SQLSMALLINT tipo, SQLHANDLE maniglia, SQLSMALLINT come)
{
    const auto vera = [&] { return __real_SQLEndTran(tipo, maniglia, come); };
    return passa(maniglia, maniglia, come == SQL_COMMIT ? u"(conferma)"_s : u"(annullo)"_s, false, vera);
}

SQLRETURN __wrap_SQLExecDirect(SQLHSTMT istruzione, SQLCHAR* testo, SQLINTEGER lunga)
{
    letta(istruzione).testo = QString::fromUtf8(reinterpret_cast<const char*>(testo), lunga);
    return esegui(istruzione, [&] { return __real_SQLExecDirect(istruzione, testo, lunga); });
}

SQLRETURN __wrap_SQLPrepare(SQLHSTMT istruzione, SQLCHAR* testo, SQLINTEGER lunga)
{
    letta(istruzione).testo = QString::fromUtf8(reinterpret_cast<const char*>(testo), lunga);
    return passa(letta(istruzione).collegamento, istruzione, u"(prepara) "_s + letta(istruzione).testo, false,
                 [&] { return __real_SQLPrepare(istruzione, testo, lunga); });
}

SQLRETURN __wrap_SQLExecute(SQLHSTMT istruzione)
{
    return esegui(istruzione, [&] { return __real_SQLExecute(istruzione); });
}

SQLRETURN __wrap_SQLTables(SQLHSTMT istruzione, SQLCHAR* catalogo, SQLSMALLINT uno, SQLCHAR* schema,
                           SQLSMALLINT due, SQLCHAR* nome, SQLSMALLINT tre, SQLCHAR* tipo,
                           SQLSMALLINT quattro)
{
    letta(istruzione).testo = u"(catalogo)"_s;
    letta(istruzione).primaRiga = true;
    return passa(letta(istruzione).collegamento, istruzione, u"(catalogo)"_s, false, [&] {
        return __real_SQLTables(istruzione, catalogo, uno, schema, due, nome, tre, tipo, quattro);
    });
}

SQLRETURN __wrap_SQLFetch(SQLHSTMT istruzione)
{
    const auto vera = [&] { return __real_SQLFetch(istruzione); };
    if (!std::exchange(letta(istruzione).primaRiga, false))
        return vera();
    return passa(letta(istruzione).collegamento, istruzione, u"(riga) "_s + letta(istruzione).testo, false,
                 vera);
}

SQLRETURN __wrap_SQLGetDiagRec(SQLSMALLINT tipo, SQLHANDLE maniglia, SQLSMALLINT numero, SQLCHAR* sqlstate,
                               SQLINTEGER* codice, SQLCHAR* testo, SQLSMALLINT spazio, SQLSMALLINT* lunga)
{
    const std::lock_guard chiuso(stato().blocco);
    const auto risposta = stato().risposte.find(maniglia);
    if (risposta == stato().risposte.end())
        return __real_SQLGetDiagRec(tipo, maniglia, numero, sqlstate, codice, testo, spazio, lunga);
    if (numero > 1)
        return SQL_NO_DATA;
    const QByteArray stato5 = risposta->second.sqlstate.toLatin1();
    const QByteArray utf8 = risposta->second.testo.toUtf8();
    std::copy_n(stato5.constData(), 6, sqlstate);
    *codice = risposta->second.codice;
    const auto quanti = std::min<qsizetype>(utf8.size(), spazio - 1);
    std::copy_n(utf8.constData(), quanti, testo);
    testo[quanti] = 0;
    *lunga = static_cast<SQLSMALLINT>(utf8.size());
    return SQL_SUCCESS;
}
}
