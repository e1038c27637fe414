#pragma once

#include "benchmarks/quadro/misura.h"

namespace banco {

/// A figure of an earlier run.
struct Precedente
{
    QString nome;
    QString database;
    qint64 righe;
    int corse;
    double rapporto;
    double dispersione;
};

/// Reads a report as scriviRelazione() writes it. Throws giacenza::Errore.
std::vector<Precedente> leggiPrecedenti(const QString& percorso);

/// A line for each figure that got slower. Times of two days are not compared, ratios are: a figure is slower
/// when its ratio grew by more than a tenth, and by more than chance explains, which is twice the spread over
/// the root of the number of pairs. What only one of the two has is left out.
QStringList rallentate(const std::vector<Precedente>& precedenti, const std::vector<Misura>& misure);

} // namespace banco
