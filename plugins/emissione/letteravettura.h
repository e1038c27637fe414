#pragma once

#include "emissione/nuovaldv.h"

#include <giacenza/Documento.h>

namespace giacenza::emissione {

/// A waybill of the database, laid out like the depot's letters, with its number as Code 128.
///
/// logo: a file; none is no logo. Throws Errore.
std::unique_ptr<Documento> componiLdv(Connessione& connessione, const LdvEmessa& ldv, const QString& logo);

} // namespace giacenza::emissione
