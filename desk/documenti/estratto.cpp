#include "desk/documenti/estratto.h"

#include "data/istruzioniestratto.h"
#include "desk/documenti/contoletto.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza::documenti {

namespace {

CasoEstratto datiCaso(const Recordset& riga)
{
    const auto testo = [&](const QString& colonna) { return riga.valore(colonna).value_or(QString()); };
    CasoEstratto caso;
    caso.conto.dati = datiConto(riga);
    caso.dataLdv = leggiGiorno(testo(u"ledtlv"_s)).value_or(QDate());
    caso.riferimento = testo(u"lerife"_s);
    caso.localita = testo(u"lelocd"_s);
    caso.provincia = testo(u"leprod"_s);
    caso.colli = testo(u"lecoll"_s);
    caso.peso = testo(u"lepeso"_s);
    caso.avvisi = testo(u"GINRAV"_s);
    caso.ultimoAvviso = leggiGiorno(testo(u"GIDTAV"_s));
    return caso;
}

bool scritto(const Valore& importo)
{
    return importo && eNumero(*importo);
}

void importi(CasoEstratto& caso)
{
    const DatiConto& dati = caso.conto.dati;
    if (!caso.aperto() && scritto(dati.sostaScritta)) {
        caso.origine = Origine::scritti;
        caso.sosta = comeScritto(*dati.sostaScritta);
        // Who writes a storage amount alone charges no fee.
        caso.fisso = scritto(dati.fissoScritto) ? comeScritto(*dati.fissoScritto) : u"0.00"_s;
    } else if (caso.conto.importi) {
        caso.origine = Origine::calcolati;
        caso.sosta = caso.conto.importi->sosta;
        caso.fisso = caso.conto.importi->fisso;
    } else {
        return;
    }
    caso.totale = somma(caso.fisso, caso.sosta);
}

/// The case as it stood at the period's end: what a later closure wrote was not there yet.
void comeAllaFine(DatiConto& dati, QDate fine)
{
    if (!dati.buonFine || *dati.buonFine <= fine)
        return;
    dati.buonFine.reset();
    dati.giorniScritti.reset();
    dati.sostaScritta.reset();
    dati.fissoScritto.reset();
    dati.fattura.clear();
    dati.dataFattura.reset();
}

QString nomeCliente(Connessione& connessione, const QString& codice)
{
    Recordset riga;
    riga.apri(connessione, istruzioni::clientePerCodice(codice));
    return riga.eof() ? QString() : riga.valore(0).value_or(QString());
}

std::vector<registro::Evento> fattiDelPeriodo(Connessione& connessione, const ChiaveGiacenza& caso,
                                              const RichiestaEstratto& richiesta,
                                              const registro::Presenza& presenza)
{
    std::vector<registro::Evento> fatti = leggiCronologia(connessione, caso, presenza).eventi;
    std::erase_if(fatti, [&](const registro::Evento& evento) {
        // Notes are the depot's own business.
        return evento.fonte == registro::Fonte::nota || evento.quando.date() < richiesta.da ||
               evento.quando.date() > richiesta.a;
    });
    return fatti;
}

void somme(Estratto& estratto)
{
    estratto.fisso = estratto.sosta = u"0.00"_s;
    for (const CasoEstratto& caso : estratto.casi) {
        estratto.aperti += caso.aperto() ? 1 : 0;
        if (caso.origine == Origine::mancanti) {
            ++estratto.senzaImporti;
            continue;
        }
        estratto.fisso = somma(estratto.fisso, caso.fisso);
        estratto.sosta = somma(estratto.sosta, caso.sosta);
    }
    estratto.totale = somma(estratto.fisso, estratto.sosta);
}

} // namespace

std::vector<ClienteAperto> clientiConAperte(Connessione& connessione)
{
    std::vector<ClienteAperto> clienti;
    Recordset righe;
    for (righe.apri(connessione, istruzioni::clientiConAperte()); !righe.eof(); righe.successivo())
        if (const Valore codice = righe.valore(0)) // a case may name no customer
            clienti.push_back(
                {*codice, righe.valore(1).value_or(QString()), righe.valore(2).value_or(QString()).toInt()});
    return clienti;
}

Estratto leggiEstratto(Connessione& connessione, const RichiestaEstratto& richiesta)
{
    if (!richiesta.da.isValid() || !richiesta.a.isValid() || richiesta.a < richiesta.da)
        throw Errore(u"Il periodo dell'estratto finisce prima di cominciare."_s);
    Estratto estratto{
        richiesta, nomeCliente(connessione, richiesta.cliente), std::min(richiesta.a, richiesta.oggi), {}};
    const Valore valori[] = {richiesta.cliente, dataSql(richiesta.a), dataSql(richiesta.da)};
    Recordset righe;
    for (righe.apri(connessione, istruzioni::giacenzeCliente(), Recordset::Cursore::chiave, valori);
         !righe.eof(); righe.successivo())
        estratto.casi.push_back(datiCaso(righe));
    const registro::Presenza presenza = registro::presenzaRegistro(connessione);
    for (CasoEstratto& caso : estratto.casi) {
        DatiConto& dati = caso.conto.dati;
        comeAllaFine(dati, richiesta.a);
        dati.ragioneSociale = estratto.ragioneSociale;
        dati.condizioni = leggiCondizioni(connessione, dati.ldv.numero, dati.ldv.anno);
        caso.conto = calcolaConto(dati, dati.buonFine.value_or(estratto.alla));
        importi(caso);
        caso.fatti = fattiDelPeriodo(connessione, dati.caso, richiesta, presenza);
    }
    somme(estratto);
    return estratto;
}

QString statoInParole(const CasoEstratto& caso)
{
    const DatiConto& dati = caso.conto.dati;
    QString stato = dati.buonFine ? u"chiusa il "_s + dataBreve(*dati.buonFine) : u"aperta"_s;
    if (!dati.fattura.isEmpty())
        stato += u", fattura n. "_s + dati.fattura;
    return stato;
}

QString fattiInParole(const CasoEstratto& caso)
{
    QStringList righe;
    for (const registro::Evento& evento : caso.fatti)
        righe << dataBreve(evento.quando.date()) + u' ' + evento.che;
    return righe.join(u'\n');
}

QString nomeEstratto(const Estratto& estratto)
{
    return u"Estratto giacenze %1 %2 %3"_s.arg(estratto.richiesta.cliente, dataSql(estratto.richiesta.da),
                                               dataSql(estratto.richiesta.a));
}

} // namespace giacenza::documenti
