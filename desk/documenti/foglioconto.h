#pragma once

#include "desk/documenti/conto.h"
#include "desk/documenti/foglio.h"

namespace giacenza::documenti {

/// Adds a charge sheet to a sheet: terms, days, sums, what is written already, warnings.
///
/// interi: a line for each day, however many; else days of one kind are drawn together once there are more of
/// them than half a page.
void aggiungiConto(Foglio& foglio, const Conto& conto, bool interi = false);

/// The charge sheet as a document of its own, for the closure document's side.
std::unique_ptr<report::DocumentoReport> documentoConto(const Conto& conto, const Carta& carta, QDate oggi,
                                                        bool interi = false);

/// "Conto della sosta 40-2026", as the file is called.
QString nomeConto(const ChiaveGiacenza& caso);

/// The terms in the operator's words: "franchi 5 giorni, poi 1,50 € al giorno, minimo 15,00 €, fisso 5,00 €";
/// what is missing is said so.
QString condizioniInParole(const std::optional<CondizioniSosta>& condizioni);

} // namespace giacenza::documenti
