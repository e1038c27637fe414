#pragma once

#include "data/istruzioniricerca.h"
#include "database/valori.h"

namespace giacenza {

/// How a column of the shipment lists shows its values.
enum class Aspetto
{
    testo,
    data, ///< dd/mm/yyyy
    segno ///< BorCons
};

/// The display of the bordereau mark: "*" for a value that is true, nothing for null, false, blank or zero.
QString BorCons(const Valore& valore);

/// nome: as the statement calls the column; case does not matter.
Aspetto aspetto(const QString& nome);

/// What a cell shows; empty for null. A date that is none is shown as it is.
QString mostra(Aspetto aspetto, const Valore& valore);

/// The caption of a column: its name in the statement, and where that is the table's own, the one that the
/// other lists give the same column.
QString didascalia(const QString& nome);

/// Whether a list reads a column only to hand it back.
bool nascosta(ModoRicerca modo, const QString& nome);

/// Where a list holds what it hands back, as places in its select, and whether the date loses the blanks
/// around it.
struct PostiScelta
{
    int numero;
    int data;
    bool dataSenzaSpazi;
};

/// Nothing for a list that hands nothing back.
std::optional<PostiScelta> postiScelta(ModoRicerca modo);

} // namespace giacenza
