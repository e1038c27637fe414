#include "grappolo/racconto.h"

#include "grappolo/verifica.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

namespace {

void aggiungiRiuscito(Racconto& racconto, const Voce& voce)
{
    switch (voce.lavoro) {
    case Lavoro::registra:
        racconto.registrata << voce.giacenza;
        break;
    case Lavoro::avvisa:
        racconto.avvisi += voce.contato ? 1 : 0;
        break;
    case Lavoro::riconsegna:
        racconto.emesse << voce.nuovaLdv;
        break;
    case Lavoro::chiude:
        if (racconto.chiusure++ == 0)
            racconto.giornoChiusura = voce.giorno;
        break;
    }
}

void aggiungiForse(Racconto& racconto, const Voce& voce)
{
    switch (voce.lavoro) {
    case Lavoro::registra:
        ++racconto.forseRegistrata;
        // The notice follows the save without another press.
        racconto.forseAvvisi += voce.esito == Esito::iniziato ? 1 : 0;
        break;
    case Lavoro::avvisa:
        ++racconto.forseAvvisi;
        break;
    case Lavoro::riconsegna:
        ++racconto.forseEmesse;
        break;
    case Lavoro::chiude:
        ++racconto.forseChiusure;
        break;
    }
}

/// Of the milliseconds of all.
qint64 mediano(QList<qint64> tempi)
{
    if (tempi.isEmpty())
        return 0;
    std::sort(tempi.begin(), tempi.end());
    return tempi[tempi.size() / 2];
}

} // namespace

QList<Voce> conclusioni(const QList<Voce>& voci)
{
    QSet<std::pair<int, int>> concluse;
    for (const Voce& voce : voci)
        if (voce.esito != Esito::iniziato)
            concluse.insert({voce.postazione, voce.passo});
    QList<Voce> tutte;
    for (const Voce& voce : voci)
        if (voce.esito != Esito::iniziato || !concluse.contains({voce.postazione, voce.passo}))
            tutte << voce;
    return tutte;
}

QMap<QString, Racconto> racconta(const QList<Voce>& voci)
{
    QMap<QString, Racconto> racconti;
    for (const Voce& voce : conclusioni(voci)) {
        Racconto& racconto = racconti[voce.ldv];
        switch (voce.esito) {
        case Esito::riuscito:
            aggiungiRiuscito(racconto, voce);
            break;
        case Esito::rifiutato:
            ++racconto.detteEsistente;
            break;
        case Esito::iniziato:
        case Esito::ignoto:
            aggiungiForse(racconto, voce);
            break;
        case Esito::fallito:
            racconto.detteEsistente +=
                voce.stato.startsWith(u"Giacenza esistente impossibile inserirla in database."_s) ? 1 : 0;
            break;
        }
    }
    return racconti;
}

QString riassunto(const QList<Voce>& voci)
{
    QMap<Lavoro, QMap<Esito, int>> conti;
    QList<qint64> tempi;
    Voce attesa;
    for (const Voce& voce : conclusioni(voci)) {
        ++conti[voce.lavoro][voce.esito];
        tempi << voce.millisecondi;
        if (voce.millisecondi > attesa.millisecondi)
            attesa = voce;
    }
    QString testo;
    for (const auto [lavoro, esiti] : conti.asKeyValueRange()) {
        QStringList pezzi;
        for (const auto [esito, quanti] : esiti.asKeyValueRange())
            pezzi << u"%1 %2"_s.arg(nome(esito)).arg(quanti);
        testo += u"%1: %2\n"_s.arg(nome(lavoro), pezzi.join(u", "));
    }
    return testo +
           u"attesa: mediana %1 ms, la più lunga %2 ms (%3 della postazione %4)\n"_s.arg(mediano(tempi))
               .arg(attesa.millisecondi)
               .arg(nome(attesa.lavoro))
               .arg(attesa.postazione);
}

QString guasti(const QList<Voce>& voci)
{
    static const QRegularExpression cifre(u"\\d+"_s);
    QMap<QString, int> tipi;
    for (const Voce& voce : conclusioni(voci)) {
        if (voce.esito == Esito::riuscito || voce.esito == Esito::rifiutato)
            continue;
        QString detto = voce.messaggi.join(u" | "_s) + u" || "_s + voce.stato;
        ++tipi[u"%1 %2: %3"_s.arg(nome(voce.lavoro), nome(voce.esito),
                                  detto.replace(cifre, u"#"_s).simplified())];
    }
    QString testo;
    for (const auto [tipo, quanti] : tipi.asKeyValueRange())
        testo += u"%1 × %2\n"_s.arg(quanti).arg(tipo);
    return testo;
}

} // namespace giacenza::prove
