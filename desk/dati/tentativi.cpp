#include "desk/dati/tentativi.h"

#include "data/codiceldv.h"
#include "data/istruzionidesk.h"

using namespace Qt::StringLiterals;

namespace giacenza::desk {

namespace {

constexpr qsizetype numeroMassimo = 20;
constexpr qsizetype cifreAnno = 4;

std::optional<ChiaveSpedizione> codice(const QString& testo)
{
    if (const auto letto = leggiCodiceLdv(testo))
        return letto;
    for (const QChar segno : {u'\'', u'/'})
        if (!testo.contains(u'-') && testo.contains(segno))
            if (const auto letto = leggiCodiceLdv(QString(testo).replace(segno, u'-')))
                return letto;
    return std::nullopt;
}

Tentativo diCodice(const ChiaveSpedizione& ldv)
{
    const QString anno = QString::number(ldv.anno);
    if (ldv.filiale.isEmpty())
        return {u"LDV %1 del %2"_s.arg(ldv.numero, anno),
                istruzioni::ldvPerNumeroAnno(),
                {ldv.numero, anno},
                true};
    return {u"LDV %1 del %2 della filiale %3"_s.arg(ldv.numero, anno, ldv.filiale),
            istruzioni::ldvPerChiave(),
            {ldv.filiale, ldv.numero, anno},
            true};
}

/// "231/2026".
std::optional<ChiaveGiacenza> numeroConAnno(const QString& testo)
{
    const QString numero = testo.section(u'/', 0, -2).trimmed();
    const QString anno = testo.section(u'/', -1).trimmed();
    if (numero.isEmpty() || numero.size() > numeroMassimo || anno.size() != cifreAnno || !soloCifre(anno))
        return std::nullopt;
    return ChiaveGiacenza{numero, anno.toInt()};
}

} // namespace

QString ripulito(const QString& digitato)
{
    QString testo;
    for (const QChar carattere : digitato)
        if (carattere.isPrint() || carattere.isSurrogate())
            testo += carattere;
    return testo.trimmed();
}

std::vector<Tentativo> tentativi(const QString& testo)
{
    std::vector<Tentativo> tutti;
    if (testo.isEmpty())
        return tutti;
    if (const auto ldv = codice(testo))
        tutti.push_back(diCodice(*ldv));
    if (const auto chiave = numeroConAnno(testo)) {
        const QString anno = QString::number(chiave->anno);
        const std::vector<Valore> parametri{chiave->numero, anno};
        tutti.push_back({u"giacenza %1 del %2"_s.arg(chiave->numero, anno),
                         istruzioni::giacenzaPerNumeroAnno(), parametri});
        tutti.push_back(
            {u"LDV %1 del %2"_s.arg(chiave->numero, anno), istruzioni::ldvPerNumeroAnno(), parametri});
    }
    if (testo.size() <= numeroMassimo) {
        tutti.push_back({u"LDV %1"_s.arg(testo), istruzioni::ldvPerNumero(), {testo}});
        tutti.push_back({u"giacenza %1"_s.arg(testo), istruzioni::giacenzaPerNumero(), {testo}});
    }
    if (testo.size() <= riferimentoMassimo)
        tutti.push_back({u"riferimento %1"_s.arg(testo), istruzioni::ldvPerRiferimento(), {testo}});
    return tutti;
}

} // namespace giacenza::desk
