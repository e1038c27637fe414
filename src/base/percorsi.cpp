#include "base/percorsi.h"

namespace giacenza {

QString percorsoNativo(const QString& percorso)
{
    QString nativo = percorso;
    return nativo.replace(u'\\', u'/');
}

} // namespace giacenza
