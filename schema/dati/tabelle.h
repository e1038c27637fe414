#pragma once

#include "database/valori.h"

#include <QStringList>

#include <vector>

namespace giacenza::dimostrazione {

/// The values of one row, in the order of its table's columns.
using Riga = std::vector<Valore>;

/// A table that demonstration data fill, with the columns they fill.
struct Tabella
{
    QString nome;
    QStringList colonne;
};

const Tabella& tabellaFiliali();
const Tabella& tabellaClienti();
const Tabella& tabellaFornitori();
const Tabella& tabellaZone();
const Tabella& tabellaPorto();
const Tabella& tabellaFatturazione();
const Tabella& tabellaImpostazioni();
const Tabella& tabellaSpedizioni();
const Tabella& tabellaGiacenze();

/// All of them, in the order in which they are filled.
std::vector<const Tabella*> tutteLeTabelle();

/// A whole number of ten-to-the-minus-cifre as decimal text: 1250 with two places gives "12.50".
QString testoDecimale(qint64 valore, int cifre);

} // namespace giacenza::dimostrazione
