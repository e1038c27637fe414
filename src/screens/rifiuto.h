#pragma once

#include "screens/schermata.h"

namespace giacenza {

/// A refusal of a field, for its check: the message, then the focus back in the field.
Seguito rifiuta(Schermata& schermata, QWidget* campo, const QString& testo, Stile stile,
                const QString& titolo = titoloApplicazione());

} // namespace giacenza
