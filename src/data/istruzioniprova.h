#pragma once

#include <QString>

#include <vector>

/// The statements that find out whether an archive can be worked on. None of them changes a row.
namespace giacenza::istruzioni {

/// A right of the workstations' user, and a statement that fails without it.
struct Diritto
{
    QString cosa; ///< after "L'utente non può"
    QString domanda;
};

/// Those that the screens need, of MariaDB, which asks for the right before it explains a statement.
std::vector<Diritto> diritti();

/// Fails on an SQLite that lacks the function that the screens' statements call.
QString annoDiProva();

/// One row, one column: 0 when the server tells table names apart by their case.
QString comeSiChiamanoLeTabelle();

} // namespace giacenza::istruzioni
