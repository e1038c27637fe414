#include "reports/letters/codiceldv.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace giacenza::report {

namespace {

QString protetto(QString parte)
{
    return parte.replace(u'\\', u"\\\\"_s).replace(u'-', u"\\-"_s);
}

} // namespace

QString codiceLdv(const QString& filiale, const QString& numero, const QString& anno)
{
    if (numero.isEmpty())
        return {};
    return QStringList{protetto(filiale), protetto(numero), anno}.join(u'-');
}

} // namespace giacenza::report
