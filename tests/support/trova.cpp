#include "support/trova.h"

using namespace Qt::StringLiterals;

namespace giacenza::prove {

namespace {

QString elenco(const QObject& radice, int rientro)
{
    QString testo;
    for (const QObject* figlio : radice.children()) {
        const QString sotto = elenco(*figlio, rientro + 2);
        // Qt gives names of its own, "qt_...", to the insides of its controls.
        const bool senzaNome = figlio->objectName().isEmpty() || figlio->objectName().startsWith(u"qt_"_s);
        if (senzaNome && sotto.isEmpty())
            continue;
        testo += u"%1%2 \"%3\"\n"_s.arg(QString(rientro, u' '),
                                        QString::fromLatin1(figlio->metaObject()->className()),
                                        figlio->objectName());
        testo += sotto;
    }
    return testo;
}

} // namespace

QString elencoFigli(const QObject& radice)
{
    return elenco(radice, 2);
}

} // namespace giacenza::prove
