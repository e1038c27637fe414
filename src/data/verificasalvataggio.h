#pragma once

#include "data/istruzioni.h"
#include "database/accesso.h"

namespace giacenza {

/// Nobody can say whether a save is in the archive; the text says so, and how to see it.
class ErroreEsitoIgnoto : public Errore
{
public:
    using Errore::Errore;
};

/// Whether a save whose confirmation was cut off is in the archive: looks for the held shipment and its link
/// on a fresh connection, waiting for whoever still holds them.
///
/// nuova: the held shipment; ldv: the waybill that it holds. Throws ErroreEsitoIgnoto when the archive cannot
/// be read.
bool salvataggioRegistrato(const Accesso& accesso, const ChiaveGiacenza& nuova, const ChiaveSpedizione& ldv);

} // namespace giacenza
