#pragma once

#include "database/accesso.h"

#include <giacenza/Errore.h>

#include <QStringList>

#include <memory>

namespace giacenza {

namespace odbc {
class Collegamento;
}

/// What the database is, as far as it matters here; told from the driver's own answer.
enum class Dialetto
{
    mariadb,
    sqlite,
    altro
};

/// How long a statement may run, and how long connecting may take, in seconds.
inline constexpr int secondiComando = 30;
inline constexpr int secondiConnessione = 10;

/// The same, in seconds, for a connection that needs others.
struct Limiti
{
    int comando = secondiComando;
    int connessione = secondiConnessione;

    /// Milliseconds for which SQLite waits for another's lock, once. Its driver lets a statement that writes,
    /// and a commit, wait twice: together the command time-out.
    int attesaBlocco() const noexcept { return comando * 1000 / 2; }
};

/// One connection to the database through ODBC. Text goes and comes as UTF-8 by the narrow calls.
///
/// Opening prepares the session: on MariaDB `SET SESSION` adds NO_BACKSLASH_ESCAPES to sql_mode and sets
/// max_statement_time, since the driver ignores the time-out attribute; on SQLite the lock wait becomes the
/// command time-out, whatever the connection string says. Closing rolls an open transaction back first and
/// closes every recordset that is still open on it.
class Connessione
{
public:
    Connessione();
    Connessione(Connessione&&) noexcept;
    Connessione& operator=(Connessione&&) noexcept;
    ~Connessione();

    /// Opens with a connection string. The driver gets it whole, with the limits added: the lock wait in
    /// front, the network time-outs behind unless it names them. The tracer, if any, is told of every event
    /// of the connection from here to its end. Throws ErroreDatabase. Does nothing when open.
    void apri(const Accesso& accesso, const Limiti& limiti = {});
    /// Also false after an answer that told that the server is gone: apri() then opens anew.
    bool aperta() const noexcept;
    /// Asks the driver, without a statement, whether the server is still there. False when closed.
    bool viva() noexcept;
    /// Never fails; does nothing when closed.
    void chiudi() noexcept;

    /// Runs a statement; rows that it gives are dropped. Outside a transaction one that the database ended
    /// because of another is run again (conTentativi). Throws ErroreDatabase, also when the connection is
    /// closed. Returns the number of rows it touched, -1 when the driver does not say.
    qint64 esegui(const QString& istruzione);

    /// The tables and views that this user sees in the base, as the driver's catalog names them: no
    /// statement, and not told to the tracer. Throws ErroreDatabase.
    QStringList tabelle();

    Dialetto dialetto() const noexcept;

    /// For the classes of this folder. Throws ErroreDatabase (08003) when closed.
    const std::shared_ptr<odbc::Collegamento>& collegamento() const;

private:
    std::shared_ptr<odbc::Collegamento> mCollegamento;
};

} // namespace giacenza
