#pragma once

#include <QString>
#include <QStringList>

#include <functional>

namespace giacenza::prove {

/// At which point of a driver's call something goes wrong.
enum class Momento
{
    prima,   ///< the database never hears of it
    durante, ///< the database had begun, and takes back what it had done
    dopo,    ///< the database did it, and its answer is not heard
};

/// What a call of the driver answers in place of what it would have.
struct Guasto
{
    QString sqlstate;
    int codice = 0;
    QString testo = {};
    Momento momento = Momento::prima;
    bool cade = false;         ///< the connection is lost with it
    bool finisceTutto = false; ///< the database ends the transaction
};

/// Whose calls count.
enum class Fili
{
    questo,
    tutti, ///< of every thread, for what reads beside the window: their calls have no order
};

/// Stands between the library and the ODBC driver while it lives: counts the calls that reach the database,
/// and makes one of them fail. Below the tracer, which stands before a statement and so cannot
/// lose an answer; the library reads the failure from the driver's diagnostics, as it would the real one.
///
/// The executable must be linked with the --wrap options of tests/guasti/CMakeLists.txt. One at a time.
class GuastiOdbc
{
public:
    explicit GuastiOdbc(Fili fili = Fili::questo);
    GuastiOdbc(const GuastiOdbc&) = delete;
    GuastiOdbc& operator=(const GuastiOdbc&) = delete;
    ~GuastiOdbc();

    /// The call of this number, from 0, fails. sempre: and each later one of the same text.
    void pianta(qsizetype quale, const Guasto& guasto, bool sempre = false);
    /// The call of this text fails: the one of this number, from 0, among those of the same text. sempre: as
    /// above.
    void pianta(const QString& testo, qsizetype quale, const Guasto& guasto, bool sempre = false);
    /// Called after each call that was let through; what it sends itself is not counted.
    void dopoOgni(std::function<void()> azione);

    /// What was called so far: the statement, or "(apertura)", "(inizio)", "(conferma)", "(fine)",
    /// "(catalogo)"; reading the first row of a statement is "(riga) " and the statement.
    const QStringList& chiamate() const;
    /// How often the failure came.
    int scattati() const;
};

} // namespace giacenza::prove
