#include "data/codiceldv.h"

#include "database/valori.h"

#include <QStringList>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

constexpr qsizetype cifreAnno = 4;

QString protetto(QString parte)
{
    return parte.replace(u'\\', u"\\\\"_s).replace(u'-', u"\\-"_s);
}

/// The parts between hyphens that have no backslash before them; nothing when a backslash stands before
/// anything else.
std::optional<QStringList> parti(const QString& codice)
{
    QStringList tutte{QString()};
    for (qsizetype i = 0; i < codice.size(); ++i) {
        if (codice.at(i) == u'\\') {
            if (++i == codice.size() || (codice.at(i) != u'\\' && codice.at(i) != u'-'))
                return std::nullopt;
            tutte.last() += codice.at(i);
        } else if (codice.at(i) == u'-') {
            tutte += QString();
        } else {
            tutte.last() += codice.at(i);
        }
    }
    return tutte;
}

} // namespace

QString codiceLdv(const QString& filiale, const QString& numero, const QString& anno)
{
    if (numero.isEmpty())
        return {};
    return QStringList{protetto(filiale), protetto(numero), anno}.join(u'-');
}

std::optional<ChiaveSpedizione> leggiCodiceLdv(const QString& codice)
{
    const auto lette = parti(codice);
    if (!lette || lette->size() != 3 || lette->at(1).isEmpty() || lette->at(2).size() != cifreAnno ||
        !soloCifre(lette->at(2)))
        return std::nullopt;
    return ChiaveSpedizione{lette->at(0), lette->at(1), lette->at(2).toInt()};
}

} // namespace giacenza
