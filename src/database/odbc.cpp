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

SQLHENV ambiente()
{
    // The one thing kept for the whole process. It is never freed: connections may live in objects that
    // outlast any order of destruction we could choose, and the driver manager keeps its drivers loaded with
    // it.
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

} // namespace giacenza::odbc
