#pragma once

#include <QString>

class QCoreApplication;

namespace deposito {

/// What the host hands on to the component.
struct Opzioni
{
    QString database; ///< ODBC connection string; empty when none was given
    QString ini;      ///< settings file
    QString logo;     ///< letterhead logo, a file
};

/// Reads the command line; a wrong one, and --help, end the process with a text in Italian.
Opzioni leggiOpzioni(const QCoreApplication& applicazione);

/// Italian for dates, numbers and the toolkit's own texts, whatever the locale of the process. Returns false
/// when the toolkit's translations are not installed: its own texts then stay English.
bool parlaItaliano(QCoreApplication& applicazione);

} // namespace deposito
