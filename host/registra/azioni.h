#pragma once

#include "riga.h"

namespace registra {

/// Does what was asked for and tells it. Throws giacenza::ErroreDescrittore.
Codice esegui(const Richiesta& richiesta);

} // namespace registra
