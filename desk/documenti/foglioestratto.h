#pragma once

#include "desk/documenti/estratto.h"
#include "desk/documenti/foglio.h"

namespace giacenza::documenti {

/// The statement as a document: its cases with their amounts, then what happened to each.
std::unique_ptr<report::DocumentoReport> documentoEstratto(const Estratto& estratto, const Carta& carta);

} // namespace giacenza::documenti
