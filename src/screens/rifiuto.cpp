#include "screens/rifiuto.h"

namespace giacenza {

Seguito rifiuta(Schermata& schermata, QWidget* campo, const QString& testo, Stile stile,
                const QString& titolo)
{
    return schermata.gestore([&schermata, campo, testo, stile, titolo] {
        schermata.messaggio(testo, stile, titolo);
        campo->setFocus();
    });
}

} // namespace giacenza
