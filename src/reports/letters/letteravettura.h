#pragma once

#include "data/nuovaldv.h"

#include <giacenza/Documento.h>

namespace giacenza {

/// A waybill of the database, laid out like the depot's letters, with its key as Code 128. The day on
/// which it is made is the waybill's own.
///
/// logo: a file; none is no logo. piede: lines for its foot. Throws Errore.
std::unique_ptr<Documento> componiLdv(Connessione& connessione, const LdvEmessa& ldv, const QString& logo,
                                      const QStringList& piede);

} // namespace giacenza
