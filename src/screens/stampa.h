#pragma once

#include <giacenza/ModuloStampa.h>

#include <optional>

class QWidget;

namespace giacenza {

/// The captions of the notice's four labels, from the settings file (section "Bord", "CaptionLbl1" to
/// "CaptionLbl4").
std::array<QString, 4> leggiDidascalie();

/// Has the print module produce a document, with the screen out of the always-on-top state meanwhile.
///
/// schermata: the screen, may be destroyed while the module's dialogs are open; chiave: held-shipment number
/// + "_" + year. Gives nothing when the document was produced, else why it was not, in Italian. Never throws.
std::optional<QString> stampaDocumento(QWidget* schermata, TipoDocumento tipo, const QString& chiave,
                                       const std::array<QString, 4>& didascalie);

} // namespace giacenza
