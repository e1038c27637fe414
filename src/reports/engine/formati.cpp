#include "reports/engine/formati.h"

#include "database/indirizzo.h"

#include <QLocale>

using namespace Qt::StringLiterals;

namespace giacenza::report::formati {

QString data(const Contesto& contesto)
{
    const QString testo = contesto.valore.value_or(QString());
    const auto giorno = leggiGiorno(testo);
    return giorno ? dataBreve(*giorno) : testo;
}

QString importo(const Contesto& contesto)
{
    const QString testo = contesto.valore.value_or(QString());
    return eNumero(testo) ? valuta(testo) : testo;
}

Formato quantita(const QString& unita)
{
    return [unita](const Contesto& contesto) {
        const QString testo = contesto.valore.value_or(QString());
        if (!eNumero(testo))
            return testo;
        constexpr int decimaliMassimi = 3;
        int decimali = decimaliMassimi;
        const QString esatto = arrotonda(testo, decimali, Arrotondamento::lontanoDaZero);
        for (auto cifra = esatto.crbegin(); decimali > 0 && *cifra == u'0'; ++cifra)
            --decimali;
        const QLocale italiano(QLocale::Italian, QLocale::Italy);
        const QString numero = italiano.toString(esatto.toDouble(), 'f', decimali);
        return unita.isEmpty() ? numero : numero + u' ' + unita;
    };
}

Formato localita(const QString& cap, const QString& localita, const QString& provincia)
{
    return [=](const Contesto& contesto) {
        return inUnaRiga({contesto.riga.testo(cap), contesto.riga.testo(localita)},
                         contesto.riga.testo(provincia));
    };
}

} // namespace giacenza::report::formati
