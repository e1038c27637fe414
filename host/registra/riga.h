#pragma once

#include <QString>

class QCoreApplication;

namespace registra {

/// What the program ends with.
enum class Codice : int
{
    fatto = 0,
    rigaSbagliata = 1, ///< the command line
    nonRegistrata = 2, ///< there is no descriptor
    descrittore = 3,   ///< the descriptor cannot be read, or is not in order
    libreria = 4,      ///< the library is gone, cannot be loaded or is not the component
    altraVersione = 5, ///< the library is of another version than its descriptor
    nonScritto = 6,    ///< the descriptor could not be written or removed
    senzaUscita = 7,   ///< what was to be said could not be written
};

enum class Azione
{
    scrivi,
    mostra,
    verifica,
    togli,
};

/// Whose descriptor is meant.
enum class Chi
{
    nonDetto,
    utente,
    sistema,
};

/// What the command line asks for.
struct Richiesta
{
    Azione azione = Azione::scrivi;
    Chi chi = Chi::nonDetto;
    QString libreria; ///< to be registered; empty when none was named
};

/// Reads the command line; a wrong one, --help and --version end the process with a text in Italian.
Richiesta leggiRiga(const QCoreApplication& applicazione);

/// Says a text in Italian, on standard output or standard error.
void dice(const QString& testo);
void lamenta(const QString& testo);

/// Whether all that was said on standard output has gone out; complains when it has not.
bool uscitaScritta();

} // namespace registra
