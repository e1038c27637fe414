#pragma once

#include "database/connessione.h"

class QComboBox;

namespace giacenza {

/// Fills a list with the freight terms in the order of their number: "number - text", the number as the
/// item's data. The selection is cleared; a list that is filled with nothing in it selected stays so. Throws
/// ErroreDatabase.
void CaricaPorto(QComboBox* elenco, Connessione& connessione);

} // namespace giacenza
