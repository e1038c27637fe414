#pragma once

#include "data/istruzioni.h"
#include "desk/registro/evento.h"

#include <vector>

namespace giacenza::registro {

/// What the depot's own tables tell of a case: when it was held, its last notice, closure and invoice, the
/// waybills linked to it. Throws ErroreDatabase, and Errore when there is no such case.
std::vector<Evento> eventiDedotti(Connessione& connessione, const ChiaveGiacenza& chiave);

/// Whether an event of the register is the same as one that was deduced.
bool loStesso(const Evento& delRegistro, const Evento& dedotto);

} // namespace giacenza::registro
