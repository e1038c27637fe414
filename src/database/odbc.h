#pragma once

#include <giacenza/Errore.h>

#include <QByteArray>
#include <QString>

#include <sql.h>
#include <sqlext.h>

/// The driver: only this namespace calls it, by the narrow calls, with text as UTF-8.
namespace giacenza::odbc {

/// Every return code of the driver passes here. Throws ErroreDatabase for a failure, with the SQLSTATE and
/// native code of the first diagnostic and the text of all of them, one to a line.
void verifica(SQLRETURN esito, SQLSMALLINT tipo, SQLHANDLE maniglia, const QString& istruzione = {});

/// The bytes of a text as the driver's calls take them; they do not change it.
inline SQLCHAR* testoOdbc(QByteArray& testo)
{
    return reinterpret_cast<SQLCHAR*>(testo.data());
}

/// An attribute that is a number travels in the pointer.
inline SQLPOINTER valoreAttributo(SQLULEN valore)
{
    return reinterpret_cast<SQLPOINTER>(valore);
}

/// The environment of the process: a handle that every connection is made from, with no setting of ours in
/// it. Throws ErroreDatabase.
SQLHENV ambiente();

} // namespace giacenza::odbc
