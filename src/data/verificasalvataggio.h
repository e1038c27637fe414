#pragma once

#include "data/esitoignoto.h"
#include "data/istruzioni.h"
#include "database/accesso.h"

namespace giacenza {

/// Whether a save whose confirmation was cut off is in the archive: looks for the held shipment and its link
/// on a fresh connection, waiting for whoever still holds them.
///
/// nuova: the held shipment; ldv: the waybill that it holds. Throws ErroreEsitoIgnoto when the archive cannot
/// be read.
bool salvataggioRegistrato(const Accesso& accesso, const ChiaveGiacenza& nuova, const ChiaveSpedizione& ldv);

} // namespace giacenza
