#pragma once

#include "database/connessione.h"
#include "desk/documenti/carta.h"
#include "desk/documenti/conto.h"
#include "reports/engine/documentoreport.h"

#include <memory>

namespace giacenza::documenti {

/// The whole case in one document: what it is and what happened, the charge sheet of today, the notice, the
/// closure where there is one, the waybills linked to it.
///
/// Throws ErroreDatabase, and Errore when there is no such case or a part cannot be laid out.
std::unique_ptr<report::DocumentoReport> fascicolo(const Accesso& accesso, const ChiaveGiacenza& caso,
                                                   const Carta& carta, QDate oggi);

/// "Fascicolo giacenza 40-2026", as the file is called.
QString nomeFascicolo(const ChiaveGiacenza& caso);

} // namespace giacenza::documenti
