#pragma once

#include <sql.h>
#include <sqlext.h>

#include <optional>
#include <string>
#include <vector>

/// The driver's calls and nothing else, as a plain program makes them.
namespace nudo {

using Valore = std::optional<std::string>;
using Riga = std::vector<Valore>;

/// One connection. Everything throws std::runtime_error when the driver refuses.
class Base
{
public:
    Base() = default;
    Base(const Base&) = delete;
    Base& operator=(const Base&) = delete;
    ~Base() { chiudi(); }

    /// Connects and sets the session as the component does: time-outs, and how texts are read. Does nothing
    /// when connected.
    void apri();
    void chiudi();

    void esegui(const std::string& testo);
    /// The rows of a select, as text. colonne: those that are read, from 1. parametri: one for each "?".
    std::vector<Riga> leggi(const std::string& testo, const std::vector<int>& colonne,
                            const std::vector<std::string>& parametri = {});
    /// The names of a select's columns; it is not run.
    std::vector<std::string> descrivi(const std::string& testo);
    void inserisci(const std::string& testo, const std::vector<std::string>& parametri);

    void inizia();
    void conferma();

private:
    void preparaSessione();

    SQLHDBC mManiglia = SQL_NULL_HDBC;
};

/// Whether the database of this process is MariaDB.
bool mariadb();

/// While it is set, what connections do is noted: "connect", "begin", "commit", "disconnect" or a statement.
void registra(std::vector<std::string>* dove);

/// printf into a string.
[[gnu::format(printf, 1, 2)]] std::string testo(const char* modello, ...);

} // namespace nudo
