#include "database/indirizzo.h"

using namespace Qt::StringLiterals;

namespace giacenza {

QString inUnaRiga(const QStringList& parti, const QString& provincia)
{
    QStringList piene = parti;
    if (!provincia.trimmed().isEmpty())
        piene << u'(' + provincia + u')';
    piene.removeIf([](const QString& parte) { return parte.trimmed().isEmpty(); });
    return piene.join(u' ');
}

} // namespace giacenza
