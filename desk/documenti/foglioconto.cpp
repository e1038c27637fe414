#include "desk/documenti/foglioconto.h"

using namespace Qt::StringLiterals;

namespace giacenza::documenti {

namespace {

using report::Allineamento;

constexpr int righeIntere = 24; // more of them leave the page of the closure document

QString euro(const Valore& importo)
{
    return importo && eNumero(*importo) ? valuta(*importo) : u"manca"_s;
}

/// A number of days as it is written by hand: "5", "2,5".
QString giorniFranchi(const Valore& giorni)
{
    if (!giorni || !eNumero(*giorni))
        return u"manca"_s;
    QString testo = *giorni;
    while (testo.contains(u'.') && (testo.endsWith(u'0') || testo.endsWith(u'.')))
        testo.chop(1);
    return testo.replace(u'.', u',');
}

void aggiungiTratti(Foglio& foglio, const Conto& conto)
{
    foglio.tabella({{u"Dal"_s, 28},
                    {u"Al"_s, 28},
                    {u"Giorni"_s, 16, Allineamento::destra},
                    {u""_s, 4},
                    {u"Che cos'è"_s, 34},
                    {u"Al giorno"_s, 28, Allineamento::destra},
                    {u"Sosta fin lì"_s, 32, Allineamento::destra}});
    for (const TrattoConto& tratto : tratti(conto.righe))
        foglio.riga({dataBreve(tratto.da),
                     dataBreve(tratto.a),
                     QString::number(tratto.giorni),
                     {},
                     parole(tratto.genere),
                     valuta(tratto.alGiorno),
                     valuta(tratto.sosta)});
}

void aggiungiGiorni(Foglio& foglio, const Conto& conto)
{
    foglio.tabella({{u"Giorno"_s, 34},
                    {u"N."_s, 12, Allineamento::destra},
                    {u""_s, 4},
                    {u"Che cos'è"_s, 50},
                    {u"Del giorno"_s, 34, Allineamento::destra},
                    {u"Sosta fin lì"_s, 36, Allineamento::destra}});
    for (const RigaConto& riga : conto.righe)
        foglio.riga({dataBreve(riga.giorno),
                     QString::number(riga.giorni),
                     {},
                     parole(riga.genere),
                     valuta(riga.delGiorno),
                     valuta(riga.sosta)});
}

void aggiungiSomme(Foglio& foglio, const Conto& conto)
{
    const DatiConto& dati = conto.dati;
    foglio.spazio(2);
    foglio.tabella({{u"Importi in euro"_s, 80},
                    {u"Calcolati"_s, 45, Allineamento::destra},
                    {u"Scritti sulla giacenza"_s, 45, Allineamento::destra}});
    const auto scritto = [](const Valore& importo) {
        return importo && eNumero(*importo) ? valuta(*importo) : u"—"_s;
    };
    foglio.riga(
        {u"Sosta, %1 giorni"_s.arg(conto.giorni), valuta(conto.importi->sosta), scritto(dati.sostaScritta)});
    foglio.riga({u"Fisso"_s, valuta(conto.importi->fisso), scritto(dati.fissoScritto)});
    foglio.riga({u"Totale al %1"_s.arg(dataBreve(conto.alla)), valuta(conto.importi->totale),
                 scritto(totaleScritto(dati))},
                Riga::forte);
}

} // namespace

QString condizioniInParole(const std::optional<CondizioniSosta>& condizioni)
{
    if (!condizioni)
        return u"il cliente non ne ha"_s;
    return u"giorni franchi %1, al giorno %2, minimo %3, fisso %4"_s.arg(
        giorniFranchi(condizioni->giorniFranchi), euro(condizioni->alGiorno), euro(condizioni->minimo),
        euro(condizioni->fisso));
}

QString nomeConto(const ChiaveGiacenza& caso)
{
    return u"Conto della sosta %1-%2"_s.arg(caso.numero, QString::number(caso.anno));
}

void aggiungiConto(Foglio& foglio, const Conto& conto, bool interi)
{
    const DatiConto& dati = conto.dati;
    const auto data = [](std::optional<QDate> giorno) { return giorno ? dataBreve(*giorno) : QString(); };
    foglio.voci({{u"Cliente"_s, u"%1 %2"_s.arg(dati.cliente, dati.ragioneSociale)},
                 {u"Destinatario"_s, dati.destinatario},
                 {u"Lettera di vettura"_s,
                  u"%1/%2 %3"_s.arg(dati.ldv.numero, QString::number(dati.ldv.anno), dati.ldv.filiale)},
                 {u"In giacenza dal"_s, data(dati.dal)},
                 {u"Buon fine"_s, data(dati.buonFine)},
                 {u"Conto alla data"_s, dataBreve(conto.alla)},
                 {u"Fattura"_s, dati.fattura.isEmpty()
                                    ? QString()
                                    : u"n. %1 %2"_s.arg(dati.fattura, data(dati.dataFattura)).trimmed()}});
    foglio.capitolo(u"Condizioni del cliente"_s);
    foglio.paragrafo(condizioniInParole(dati.condizioni));
    QStringList avvertenze = conto.avvertenze;
    if (!conto.mancante.isEmpty())
        avvertenze.prepend(conto.mancante);
    if (!avvertenze.isEmpty())
        foglio.avvertenza(avvertenze.join(u'\n'));
    if (!conto.righe.empty()) {
        foglio.capitolo(u"Giorni di sosta"_s);
        if (interi || conto.righe.size() <= righeIntere)
            aggiungiGiorni(foglio, conto);
        else
            aggiungiTratti(foglio, conto);
    }
    if (conto.importi)
        aggiungiSomme(foglio, conto);
}

std::unique_ptr<report::DocumentoReport> documentoConto(const Conto& conto, const Carta& carta, QDate oggi,
                                                        bool interi)
{
    const ChiaveGiacenza& caso = conto.dati.caso;
    Foglio foglio(carta, u"Conto della sosta %1/%2"_s.arg(caso.numero, QString::number(caso.anno)));
    foglio.titolo(u"Conto della sosta"_s, u"Giacenza n. %1 / %2 — fatto il %3"_s.arg(
                                              caso.numero, QString::number(caso.anno), dataBreve(oggi)));
    aggiungiConto(foglio, conto, interi);
    return foglio.documento();
}

} // namespace giacenza::documenti
