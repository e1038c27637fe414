#pragma once

#include <giacenza/ModuloStampa.h>

class QWidget;

namespace giacenza {

/// How the print module fared with a document.
struct EsitoStampa
{
    bool prodotto = false;
    bool raccontato = false; ///< the module has told the operator itself why there is none
    QString motivo = {};     ///< why there is none, in Italian
    QString parole = {};     ///< the same in the words of what failed
    QString file = {};       ///< where it lies, absolute; empty when the module does not say
};

/// The captions of the notice's four labels, from the settings file (section "Bord", "CaptionLbl1" to
/// "CaptionLbl4").
std::array<QString, 4> leggiDidascalie();

/// Has the print module that the settings name produce a document of this thread's database and letterhead.
///
/// padre: the window over which the module's dialogs open, may be null; chiave: held-shipment number + "_" +
/// year. Never throws.
EsitoStampa stampaConModulo(QWidget* padre, TipoDocumento tipo, const QString& chiave,
                            const std::array<QString, 4>& didascalie);

} // namespace giacenza
