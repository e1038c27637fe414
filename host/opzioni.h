#pragma once

#include <QString>

class QCoreApplication;

namespace deposito {

/// What the host hands on to the component.
struct Opzioni
{
    QString database;   ///< ODBC connection string; empty when none was given
    QString ini;        ///< settings file
    QString logo;       ///< letterhead logo, a file
    QString guasto{};   ///< why the connection string could not be read, for the operator; else empty
    bool nuova = false; ///< a window of its own, also beside one that works on the same archive
    bool preparaRegistro = false; ///< prepare the archive's register and end
};

/// Names the program: its settings, and what a desktop calls it.
void presentati();

/// True when the command line asks for a text and for no window, so that no display is needed.
bool chiedeSoloTesto(int argc, const char* const* argv);

/// Reads the command line; a wrong one, --help and --version end the process with a text in Italian.
Opzioni leggiOpzioni(const QCoreApplication& applicazione);

/// Italian for dates, numbers and the toolkit's own texts, whatever the locale of the process. Returns false
/// when the toolkit's translations are not installed: its own texts then stay English.
bool parlaItaliano(QCoreApplication& applicazione);

} // namespace deposito
