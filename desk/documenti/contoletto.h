#pragma once

#include "database/recordset.h"
#include "desk/documenti/conto.h"

namespace giacenza::documenti {

/// A row that has the columns of giace00f; customer's name and recipient where the row has RagioneSociale and
/// ledest. Without the billing terms. Throws ErroreDatabase.
DatiConto datiConto(const Recordset& riga);

/// A case with the terms that its closure would take. Throws ErroreDatabase, and Errore when there is no such
/// case.
DatiConto leggiDatiConto(Connessione& connessione, const ChiaveGiacenza& caso);

} // namespace giacenza::documenti
