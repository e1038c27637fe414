#pragma once

#include <QString>

class QIODevice;

namespace deposito {

/// The environment variable that may hold the connection string.
inline constexpr char variabileArchivio[] = "GIACENZA_DATABASE";

/// A connection string, or why there is none, in Italian; both empty when nobody gave one.
struct StringaArchivio
{
    QString stringa;
    QString guasto;
};

/// Where the command line says that the connection string is; null what it does not name.
struct FonteArchivio
{
    QString stringa; ///< the string itself, or "-" for a line of the standard input
    QString file;    ///< a file that holds it
};

/// The connection string of the first that is given: the command line, then the environment. The variable is
/// taken out of this process's environment, so that what is started from here does not get the password.
///
/// ingresso: the standard input, opened for reading; read only for "-".
StringaArchivio leggiArchivio(const FonteArchivio& fonte, QIODevice& ingresso);

} // namespace deposito
