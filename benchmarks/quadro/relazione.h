#pragma once

#include "benchmarks/quadro/misura.h"

namespace banco {

/// The lines of the table that is printed.
QString testata();
QString riga(const Misura& misura);

/// What a goal asks, in a few characters: "1.15x", "+5 ms", "1.2x 40 MB", "+2 MB"; empty without one.
QString testoObiettivo(const Obiettivo& obiettivo);

/// Writes the figures as a JSON list of objects: name, database, rows, runs, ours_ms, reference_ms, ratio,
/// spread, peak_mb, reference_peak_mb, goal (as testoObiettivo(), null without one), met (null without a
/// goal). Throws giacenza::Errore.
void scriviRelazione(const QString& percorso, const std::vector<Misura>& misure);

} // namespace banco
