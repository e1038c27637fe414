#include "desk/documenti/estrattocsv.h"

#include "desk/documenti/colonneestratto.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza::documenti {

namespace {

QString cella(const Cella& valore)
{
    if (const auto* testo = std::get_if<QString>(&valore))
        return cellaCsv(*testo);
    if (const auto* giorno = std::get_if<QDate>(&valore))
        return dataBreve(*giorno);
    if (const auto* numero = std::get_if<Numero>(&valore))
        return QString(numero->valore).replace(u'.', u',');
    return {};
}

} // namespace

QString cellaCsv(const QString& testo)
{
    static const QString comeFormula = u"=+-@\t\r\n\uFF1D\uFF0B\uFF0D\uFF20"_s;
    QString cella = testo;
    const QString visibile = testo.trimmed();
    // Some programs drop the blanks in front before they look.
    if ((!testo.isEmpty() && comeFormula.contains(testo.front())) ||
        (!visibile.isEmpty() && comeFormula.contains(visibile.front())))
        cella.prepend(u'\'');
    const auto vuoleVirgolette = [](QChar c) { return c == u';' || c == u'"' || c == u'\n' || c == u'\r'; };
    if (std::any_of(cella.cbegin(), cella.cend(), vuoleVirgolette))
        cella = u'"' + cella.replace(u'"', u"\"\""_s) + u'"';
    return cella;
}

QByteArray estrattoCsv(const Estratto& estratto)
{
    QStringList righe{titoliEstratto().join(u';')};
    for (const CasoEstratto& caso : estratto.casi) {
        QStringList celle;
        for (const Cella& valore : celleEstratto(estratto, caso))
            celle << cella(valore);
        righe << celle.join(u';');
    }
    return "\xEF\xBB\xBF" + (righe.join(u"\r\n"_s) + u"\r\n"_s).toUtf8();
}

} // namespace giacenza::documenti
