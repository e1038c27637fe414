#include "desk/documenti/fascicolo.h"

#include "data/istruzioniestratto.h"
#include "data/nuovaldv.h"
#include "desk/documenti/contoletto.h"
#include "desk/documenti/foglioconto.h"
#include "desk/registro/cronologia.h"
#include "reports/letters/letteravettura.h"
#include "reports/letters/rptavviso.h"
#include "reports/letters/rptbuonfine.h"

using namespace Qt::StringLiterals;

namespace giacenza::documenti {

namespace {

using report::DocumentoReport;
using report::PaginaReport;

void unisci(std::vector<PaginaReport>& pagine, const DocumentoReport& documento)
{
    for (int i = 0; i < documento.pagine(); ++i)
        pagine.push_back(documento.pagina(i));
}

void cronologia(Foglio& foglio, const registro::Cronologia& letta)
{
    foglio.capitolo(u"Che cosa è successo"_s);
    if (const QString mancanza = letta.presenza.mancanza(); !mancanza.isEmpty())
        foglio.paragrafo(mancanza);
    foglio.tabella({{u"Quando"_s, 30}, {u"Chi"_s, 38}, {u"Che cosa"_s, 102}});
    for (const registro::Evento& evento : letta.eventi) {
        const QString testo = evento.testo.isEmpty() ? evento.che : evento.che + u'\n' + evento.testo;
        foglio.riga({quandoEsteso(evento), evento.chi, testo});
    }
}

template<class Lettera>
void lettera(std::vector<PaginaReport>& pagine, TipoDocumento tipo, const Accesso& accesso,
             const ChiaveGiacenza& caso, const Carta& carta, QDate oggi)
{
    RichiestaDocumento richiesta;
    richiesta.tipo = tipo;
    richiesta.chiave = u"%1_%2"_s.arg(caso.numero, QString::number(caso.anno));
    richiesta.percorsoDatabase = accesso.stringa;
    richiesta.percorsoLogo = carta.logo;
    richiesta.didascalie = carta.didascalie;
    // An instance of its own: what a closure hides on the shared one stays hidden there alone.
    Lettera report;
    const auto documento = report.componi(richiesta, oggi, nullptr, Lettera::Guasti::lanciati);
    if (!documento)
        throw Errore(u"Una lettera del fascicolo non si è potuta comporre."_s);
    unisci(pagine, *documento);
}

void lettereVettura(std::vector<PaginaReport>& pagine, Connessione& connessione, const DatiConto& dati,
                    const Carta& carta)
{
    const Valore valori[] = {dati.caso.numero, QString::number(dati.caso.anno)};
    std::vector<LdvEmessa> collegate;
    Recordset ldv;
    for (ldv.apri(connessione, istruzioni::ldvCollegate(), Recordset::Cursore::chiave, valori); !ldv.eof();
         ldv.successivo()) {
        const auto data = leggiGiorno(ldv.valore(u"ledtlv"_s).value_or(QString()));
        if (data)
            collegate.push_back({ldv.valore(u"lefili"_s).value_or(QString()),
                                 ldv.valore(u"lenrlv"_s).value_or(QString()),
                                 ldv.valore(u"leanlv"_s).value_or(QString()).toInt(),
                                 *data,
                                 {}});
    }
    for (const LdvEmessa& emessa : collegate) {
        const auto documento = componiLdv(connessione, emessa, carta.logo, carta.piede);
        if (const auto* pagineLdv = dynamic_cast<const DocumentoReport*>(documento.get()))
            unisci(pagine, *pagineLdv);
    }
}

} // namespace

QString nomeFascicolo(const ChiaveGiacenza& caso)
{
    return u"Fascicolo giacenza %1-%2"_s.arg(caso.numero, QString::number(caso.anno));
}

std::unique_ptr<DocumentoReport> fascicolo(const Accesso& accesso, const ChiaveGiacenza& caso,
                                           const Carta& carta, QDate oggi)
{
    const QString titolo = u"Fascicolo della giacenza %1/%2"_s.arg(caso.numero, QString::number(caso.anno));
    Connessione connessione;
    connessione.apri(accesso);
    const DatiConto dati = leggiDatiConto(connessione, caso);
    const Conto conto = calcolaConto(dati, oggi);

    Foglio foglio(carta, titolo);
    foglio.titolo(
        u"Fascicolo della giacenza"_s,
        u"n. %1 / %2 — fatto il %3"_s.arg(caso.numero, QString::number(caso.anno), dataBreve(oggi)));
    foglio.voci({{u"Cliente"_s, u"%1 %2"_s.arg(dati.cliente, dati.ragioneSociale)},
                 {u"Destinatario"_s, dati.destinatario},
                 {u"In giacenza dal"_s, dati.dal ? dataBreve(*dati.dal) : QString()},
                 {u"Stato"_s, dati.buonFine ? u"chiusa il "_s + dataBreve(*dati.buonFine) : u"aperta"_s}});
    cronologia(foglio, registro::leggiCronologia(connessione, caso));
    foglio.nuovaPagina();
    foglio.titolo(u"Conto della sosta"_s, {});
    aggiungiConto(foglio, conto);
    std::vector<PaginaReport> pagine = foglio.pagine();
    lettera<RptAvviso>(pagine, TipoDocumento::avviso, accesso, caso, carta, oggi);
    if (dati.buonFine)
        lettera<RptBuonFine>(pagine, TipoDocumento::buonFine, accesso, caso, carta, oggi);
    lettereVettura(pagine, connessione, dati, carta);
    return std::make_unique<DocumentoReport>(titolo, QPageSize(QPageSize::A4), std::move(pagine),
                                             report::Ascoltatore{[] { return true; }});
}

} // namespace giacenza::documenti
