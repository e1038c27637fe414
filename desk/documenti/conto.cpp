#include "desk/documenti/conto.h"

#include "data/sosta.h"

using namespace Qt::StringLiterals;

namespace giacenza::documenti {

namespace {

/// Charges are worked out for days of 16 bits, so there is never a longer sheet.
constexpr int giorniMassimi = 32767;

QString euro(const Valore& importo)
{
    return importo && eNumero(*importo) ? valuta(*importo) : u"niente"_s;
}

ImportiConto importiDi(const CondizioniSosta& condizioni, int giorni)
{
    const ImportiGiacenza importi = calcolaImporti(condizioni, QString::number(giorni));
    ImportiConto scritti{comeScritto(importi.fisso.testo()), comeScritto(importi.sosta.testo()), {}};
    scritti.totale = somma(scritti.fisso, scritti.sosta);
    return scritti;
}

GenereGiorno genereDi(const QString& sosta, const CondizioniSosta& condizioni)
{
    if (confronta(sosta, u"0"_s) == 0)
        return GenereGiorno::senzaAddebito;
    return condizioni.minimo && confronta(sosta, comeScritto(*condizioni.minimo)) == 0
               ? GenereGiorno::nelMinimo
               : GenereGiorno::aGiornata;
}

void calcolaRighe(Conto& conto, const CondizioniSosta& condizioni)
{
    QString prima = u"0.00"_s;
    for (int n = 1; n <= conto.giorni; ++n) {
        const QString sosta = importiDi(condizioni, n).sosta;
        conto.righe.push_back({conto.dati.dal->addDays(n), n, genereDi(sosta, condizioni),
                               somma(sosta, prodotto(prima, u"-1"_s)), sosta});
        prima = sosta;
    }
}

void calcola(Conto& conto)
{
    const DatiConto& dati = conto.dati;
    if (!dati.dal) {
        conto.mancante = u"La giacenza non ha la data da cui contare i giorni."_s;
        return;
    }
    const auto fino = dati.buonFine && *dati.buonFine < conto.alla ? dati.buonFine : std::nullopt;
    conto.giorni = giorniSosta(*dati.dal, fino, conto.alla);
    if (!dati.condizioni) {
        conto.mancante =
            u"Il cliente %1 non ha condizioni di fatturazione: gli importi non si possono calcolare."_s.arg(
                dati.cliente);
        return;
    }
    if (conto.giorni > giorniMassimi) {
        conto.mancante =
            u"I giorni di sosta sono %1, più di quanti se ne possano addebitare."_s.arg(conto.giorni);
        return;
    }
    try {
        calcolaRighe(conto, *dati.condizioni);
        conto.importi = importiDi(*dati.condizioni, conto.giorni);
    } catch (const ErroreConversione& errore) {
        conto.mancante = errore.testo();
    }
}

bool diversi(const Valore& scritto, const QString& calcolato)
{
    return !scritto || !eNumero(*scritto) || confronta(*scritto, calcolato) != 0;
}

void avverti(Conto& conto)
{
    const DatiConto& dati = conto.dati;
    QStringList& avvertenze = conto.avvertenze;
    const bool scritti = dati.sostaScritta || dati.fissoScritto;
    if (!dati.fattura.isEmpty())
        avvertenze << u"Già fatturata: fattura n. %1%2. Un altro addebito sarebbe il secondo."_s.arg(
            dati.fattura, dati.dataFattura ? u" del "_s + dataBreve(*dati.dataFattura) : QString());
    if (scritti)
        avvertenze << u"Sulla giacenza sono già scritti sosta %1 e fisso %2%3."_s.arg(
            euro(dati.sostaScritta), euro(dati.fissoScritto),
            dati.fattura.isEmpty() ? u": addebitarli di nuovo sarebbe la seconda volta"_s : QString());
    if (scritti && conto.importi &&
        (diversi(dati.sostaScritta, conto.importi->sosta) ||
         diversi(dati.fissoScritto, conto.importi->fisso)))
        avvertenze << u"Gli importi scritti non sono quelli che si calcolano qui."_s;
    if (!dati.precedente.isEmpty())
        avvertenze
            << u"Segue la giacenza n. %1%2: guardare che gli stessi giorni non siano già addebitati là."_s
                   .arg(dati.precedente,
                        dati.dataPrecedente ? u" del "_s + dataBreve(*dati.dataPrecedente) : QString());
    if (dati.dal && conto.giorni < 0)
        avvertenze << u"Alla data scelta la giacenza non era ancora cominciata."_s;
}

} // namespace

QString parole(GenereGiorno genere)
{
    switch (genere) {
    case GenereGiorno::senzaAddebito:
        return u"senza addebito"_s;
    case GenereGiorno::nelMinimo:
        return u"nel minimo"_s;
    case GenereGiorno::aGiornata:
        break;
    }
    return u"a giornata"_s;
}

Valore totaleScritto(const DatiConto& dati)
{
    Valore totale;
    for (const Valore& importo : {dati.sostaScritta, dati.fissoScritto})
        if (importo && eNumero(*importo))
            totale = somma(totale.value_or(u"0"_s), *importo);
    return totale;
}

QString comeScritto(const QString& importo)
{
    QString testo = importo;
    return FormattaNumero(testo);
}

Conto calcolaConto(const DatiConto& dati, QDate alla)
{
    Conto conto;
    conto.dati = dati;
    conto.alla = alla;
    calcola(conto);
    avverti(conto);
    return conto;
}

std::vector<TrattoConto> tratti(const std::vector<RigaConto>& righe)
{
    std::vector<TrattoConto> uniti;
    for (const RigaConto& riga : righe) {
        if (!uniti.empty() && uniti.back().genere == riga.genere && uniti.back().alGiorno == riga.delGiorno) {
            uniti.back().a = riga.giorno;
            ++uniti.back().giorni;
            uniti.back().sosta = riga.sosta;
            continue;
        }
        uniti.push_back({riga.giorno, riga.giorno, 1, riga.genere, riga.delGiorno, riga.sosta});
    }
    return uniti;
}

} // namespace giacenza::documenti
