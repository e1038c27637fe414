#pragma once

#include "support/bancadati.h"

#include <giacenza/Documento.h>

namespace giacenza::prove {

/// Fills a database with one held shipment of every field: key 1234_2015, waybill 0098765 of branch MI.
void aggiungiCaso(const BancaDati& base);

/// What the print module asks for it: four captions, no logo.
RichiestaDocumento richiestaDelCaso(const BancaDati& base, TipoDocumento tipo = TipoDocumento::avviso);

} // namespace giacenza::prove
