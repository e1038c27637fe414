#include "desk/documenti/foglioestratto.h"

using namespace Qt::StringLiterals;

namespace giacenza::documenti {

namespace {

using report::Allineamento;

QString euro(const QString& importo)
{
    return importo.isEmpty() ? u"mancano"_s : valuta(importo);
}

QString nome(const ChiaveGiacenza& caso)
{
    return u"%1/%2"_s.arg(caso.numero, QString::number(caso.anno));
}

QString spedizione(const CasoEstratto& caso)
{
    const ChiaveSpedizione& ldv = caso.conto.dati.ldv;
    const QString numero = u"%1/%2"_s.arg(ldv.numero, QString::number(ldv.anno));
    return caso.riferimento.isEmpty() ? numero : numero + u'\n' + caso.riferimento;
}

QString destinatario(const CasoEstratto& caso)
{
    const QString luogo =
        caso.provincia.isEmpty() ? caso.localita : u"%1 (%2)"_s.arg(caso.localita, caso.provincia);
    return luogo.isEmpty() ? caso.conto.dati.destinatario : caso.conto.dati.destinatario + u'\n' + luogo;
}

void elenco(Foglio& foglio, const Estratto& estratto)
{
    foglio.capitolo(u"Giacenze del periodo"_s);
    foglio.tabella({{u"Giacenza"_s, 18},
                    {u"Dal"_s, 19},
                    {u"LDV e riferimento"_s, 27},
                    {u"Destinatario"_s, 35},
                    {u"Stato"_s, 25},
                    {u"Giorni"_s, 11, Allineamento::destra},
                    {u"Fisso"_s, 17, Allineamento::destra},
                    {u"Sosta"_s, 18, Allineamento::destra}});
    for (const CasoEstratto& caso : estratto.casi) {
        const DatiConto& dati = caso.conto.dati;
        foglio.riga({nome(dati.caso), dati.dal ? dataBreve(*dati.dal) : QString(), spedizione(caso),
                     destinatario(caso), statoInParole(caso), QString::number(caso.conto.giorni),
                     euro(caso.fisso), euro(caso.sosta)});
    }
    foglio.riga({u"Totale"_s, {}, {}, {}, {}, {}, valuta(estratto.fisso), valuta(estratto.sosta)},
                Riga::forte);
}

void fatti(Foglio& foglio, const Estratto& estratto)
{
    foglio.capitolo(u"Che cosa è successo"_s);
    foglio.tabella({{u"Giacenza"_s, 20}, {u"Giorno"_s, 22}, {u"Fatto"_s, 128}});
    for (const CasoEstratto& caso : estratto.casi)
        for (const registro::Evento& evento : caso.fatti)
            foglio.riga({nome(caso.conto.dati.caso), dataBreve(evento.quando.date()), evento.che});
}

} // namespace

std::unique_ptr<report::DocumentoReport> documentoEstratto(const Estratto& estratto, const Carta& carta)
{
    const RichiestaEstratto& richiesta = estratto.richiesta;
    const QString periodo = u"dal %1 al %2"_s.arg(dataBreve(richiesta.da), dataBreve(richiesta.a));
    Foglio foglio(carta, u"Estratto giacenze %1 %2"_s.arg(richiesta.cliente, periodo));
    foglio.titolo(u"Estratto giacenze"_s,
                  u"%1 %2, %3"_s.arg(richiesta.cliente, estratto.ragioneSociale, periodo));
    foglio.voci({{u"Giacenze"_s, u"%1, di cui %2 aperte"_s.arg(estratto.casi.size()).arg(estratto.aperti)},
                 {u"Totale"_s, valuta(estratto.totale)},
                 {u"Aperte calcolate al"_s, dataBreve(estratto.alla)},
                 {u"Fatto il"_s, dataBreve(richiesta.oggi)}});
    if (estratto.senzaImporti > 0)
        foglio.avvertenza(
            u"Di %1 giacenze mancano gli importi, che non sono nei totali: il cliente non ha, o non ha "
            "intere, le condizioni di fatturazione."_s.arg(estratto.senzaImporti));
    if (estratto.casi.empty()) {
        foglio.paragrafo(u"Nel periodo non ci sono giacenze."_s);
        return foglio.documento();
    }
    elenco(foglio, estratto);
    fatti(foglio, estratto);
    foglio.spazio(2);
    foglio.paragrafo(
        u"Gli importi delle giacenze aperte sono quelli che si addebiterebbero chiudendole il %1; quelli "
        "delle chiuse sono gli importi scritti. Tutti sono al netto dell'IVA."_s.arg(
            dataBreve(estratto.alla)));
    return foglio.documento();
}

} // namespace giacenza::documenti
