#include "widgets/campotesto.h"

#include <QMimeData>

namespace giacenza {

void CampoTesto::insertFromMimeData(const QMimeData* dati)
{
    QString testo = dati->text();
    if (testo.size() <= massimoIncollato) {
        QPlainTextEdit::insertFromMimeData(dati);
        return;
    }
    testo.truncate(massimoIncollato);
    if (testo.back().isHighSurrogate())
        testo.chop(1);
    QMimeData corti;
    corti.setText(testo);
    QPlainTextEdit::insertFromMimeData(&corti);
    Q_EMIT tagliato();
}

} // namespace giacenza
