#pragma once

#include "benchmarks/quadro/misura.h"

namespace banco {

/// The lines of the table that is printed.
QString testata();
QString riga(const Misura& misura);

/// Writes the figures as a JSON list of objects: name, database, rows, runs, ours_ms, reference_ms, ratio,
/// goal (null without one), peak_mb, reference_peak_mb. Throws giacenza::Errore.
void scriviRelazione(const QString& percorso, const std::vector<Misura>& misure);

} // namespace banco
