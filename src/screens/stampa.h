#pragma once

#include "reports/letters/stampamodulo.h"

namespace giacenza {

/// Has the print module produce a document, with the screen out of the always-on-top state meanwhile.
///
/// schermata: the screen, may be destroyed while the module's dialogs are open; chiave: held-shipment number
/// + "_" + year. Never throws.
EsitoStampa stampaDocumento(QWidget* schermata, TipoDocumento tipo, const QString& chiave,
                            const std::array<QString, 4>& didascalie);

} // namespace giacenza
