#include "dialogs/porto.h"

#include "data/istruzioni.h"
#include "database/recordset.h"

#include <QComboBox>

using namespace Qt::StringLiterals;

namespace giacenza {

void CaricaPorto(QComboBox* elenco, Connessione& connessione)
{
    Recordset porti;
    porti.apri(connessione, istruzioni::elencoPorto());
    elenco->clear();
    for (; !porti.eof(); porti.successivo()) {
        const QString numero = porti.valore(0).value_or(QString());
        elenco->addItem(numero + u" - "_s + porti.valore(1).value_or(QString()), numero);
    }
    // Qt selects the first row that is added.
    elenco->setCurrentIndex(-1);
}

} // namespace giacenza
