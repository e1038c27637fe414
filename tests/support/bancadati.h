#pragma once

#include "database/recordset.h"

#include <QStringList>

#include <memory>
#include <ostream>
#include <string>

namespace giacenza::prove {

/// What a new database holds.
enum class Contenuto
{
    schema, ///< the tables of schema/, empty
    vuoto
};

/// A database of a test's own, gone at its end.
///
///     class Salvataggio : public testing::TestWithParam<std::string>
///     {
///     protected:
///         BancaDati mBase{GetParam()};
///     };
///     INSTANTIATE_TEST_SUITE_P(Basi, Salvataggio, testing::Values("sqlite", "mariadb"),
///                              nomeBase<testing::TestParamInfo<std::string>>);
///
/// With GIACENZA_PROVE_REGISTRO in the environment a database with the schema has the register too: what a
/// test finds must be the same.
///
/// "mariadb" needs the label "server" in the test's CMakeLists.txt: ctest starts the server. A database that
/// cannot be made throws, and so fails the test, with what is missing.
class BancaDati
{
public:
    /// tipo: "sqlite" or "mariadb".
    explicit BancaDati(const std::string& tipo, Contenuto contenuto = Contenuto::schema);
    BancaDati(const BancaDati&) = delete;
    BancaDati& operator=(const BancaDati&) = delete;
    ~BancaDati();

    /// The connection string of a workstation's user: on MariaDB one that may do what schema/grants.sql
    /// says, or in an empty database select, insert, update and delete.
    QString stringa() const;
    /// The same, with the tracer of the thread: what is opened with it tells impostaTraccia()'s.
    Accesso accesso() const;
    /// The way of a user who may do everything.
    Accesso accessoAmministratore() const;

    /// A new open connection as workstation, and as a user who may do everything; both traced.
    Connessione connessione() const;
    Connessione amministratore() const;

    /// As administrator: runs one statement, or several that end with ";" at the end of a line.
    void esegui(const QString& istruzioni) const;

    /// As administrator: the first value of the first row; nothing for null, throws without rows.
    Valore leggi(const QString& istruzione) const;

    /// As administrator: all rows, null as the text "NULL".
    QList<QStringList> righe(const QString& istruzione) const;

    class Motore;

private:
    std::unique_ptr<Motore> mMotore;
};

/// The administrator's connection string of the test server, without a DATABASE. Throws without the server.
QString stringaServer();

/// Runs the statements of a text one by one: each ends with ";" at the end of a line.
void eseguiTutte(Connessione& connessione, const QString& istruzioni);

/// The name of a parametrised test is the name of its database.
template<class Informazioni>
std::string nomeBase(const Informazioni& informazioni)
{
    return informazioni.param;
}

} // namespace giacenza::prove

namespace giacenza {

inline void PrintTo(const ErroreDatabase& errore, std::ostream* uscita)
{
    *uscita << '[' << errore.sqlstate().toStdString() << "] (" << errore.codiceNativo() << ") "
            << errore.what() << " <- " << errore.istruzione().toStdString();
}

} // namespace giacenza
