#include "screens/porto.h"

#include "data/istruzioni.h"
#include "data/recordset.h"

#include <QComboBox>

namespace giacenza {

void CaricaPorto(QComboBox* elenco, Connessione& connessione)
{
    Recordset porti;
    porti.apri(connessione, istruzioni::elencoPorto());
    elenco->clear();
    for (; !porti.eof(); porti.successivo()) {
        const QString numero = porti.valore(0).value_or(QString());
        elenco->addItem(numero + QStringLiteral(" - ") + porti.valore(1).value_or(QString()), numero);
    }
    // Qt selects the first row that is added.
    elenco->setCurrentIndex(-1);
}

} // namespace giacenza
