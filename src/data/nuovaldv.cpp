#include "data/nuovaldv.h"

#include "data/istruzioniemissione.h"
#include "data/riconsegne.h"
#include "database/indirizzo.h"
#include "database/nuovariga.h"
#include "database/recordset.h"
#include "database/tentativi.h"
#include "database/transazione.h"
#include "database/valori.h"

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

struct Luogo
{
    Valore nome;
    Valore indirizzo;
    Valore cap;
    Valore localita;
    Valore provincia;
};

Luogo destinatario(const RecordLdv& originale)
{
    return {originale.valore(u"ledest"_s), originale.valore(u"leindd"_s), originale.valore(u"lecapd"_s),
            originale.valore(u"lelocd"_s), originale.valore(u"leprod"_s)};
}

/// Name, address and town, each without line ends, one a line.
QString inRighe(const Luogo& luogo)
{
    const auto testo = [](const Valore& valore) { return valore.value_or(QString()).simplified(); };
    return QStringList{testo(luogo.nome), testo(luogo.indirizzo),
                       inUnaRiga({testo(luogo.cap), testo(luogo.localita)}, testo(luogo.provincia))}
        .join(u'\n');
}

Luogo mittente(Connessione& connessione, const RecordLdv& originale)
{
    const Valore codice = originale.valore(u"lecodi"_s);
    Recordset cliente;
    cliente.apri(connessione, istruzioni::indirizzoCliente(), Recordset::Cursore::soloAvanti, {{codice}});
    if (cliente.eof())
        throw Errore(
            u"Il mittente, cliente %1, non è in archivio: nessuna lettera di vettura è stata emessa."_s.arg(
                codice.value_or(u"senza codice"_s)));
    return {cliente.valore(0), cliente.valore(1), cliente.valore(2), cliente.valore(3), cliente.valore(4)};
}

/// Makes issuers wait for each other, from here to the end of the transaction: the row of the general
/// settings is written as it is. A plain select would not do: on SQLite the transaction could then no longer
/// write after another one's commit, on MariaDB it would go on seeing the waybills as they were.
void mettiInFila(Connessione& connessione)
{
    connessione.esegui(istruzioni::codaEmittenti());
}

void ricontrolla(Connessione& connessione, const Contesto& contesto)
{
    const ContoRiconsegne conto =
        ContaRiconsegne(connessione, {contesto.numeroGiacenza, contesto.annoGiacenza});
    const QString giacenza = u"%1/%2"_s.arg(contesto.numeroGiacenza, QString::number(contesto.annoGiacenza));
    if (conto.esito == EsitoRiconsegne::inesistente)
        throw Errore(
            u"La giacenza %1 non è più in archivio: nessuna lettera di vettura è stata emessa."_s.arg(
                giacenza));
    if (conto.esito == EsitoRiconsegne::chiusa)
        throw Errore(
            u"La giacenza %1 è stata chiusa nel frattempo: nessuna lettera di vettura è stata emessa."_s.arg(
                giacenza));
    if (conto.riconsegne != contesto.riconsegne)
        throw Errore(
            u"Per la giacenza %1 un'altra postazione ha emesso nel frattempo una lettera di vettura: "
            "nessun'altra è stata emessa. Riaprire la schermata e ripetere, se serve."_s.arg(giacenza));
}

/// Asked before the transaction: it sees the catalog and no waybill.
bool haColonnaNumero(Connessione& connessione)
{
    if (connessione.dialetto() != Dialetto::mariadb)
        return false;
    Recordset colonna;
    colonna.apri(connessione, istruzioni::colonnaNumeroLdv(), Recordset::Cursore::soloAvanti);
    return !colonna.eof();
}

QString prossimoNumero(Connessione& connessione, int anno, bool colonnaNumero)
{
    Recordset massimo;
    massimo.apri(connessione,
                 colonnaNumero ? istruzioni::ultimoNumeroLdvDaColonna()
                               : istruzioni::ultimoNumeroLdv(connessione.dialetto()),
                 Recordset::Cursore::soloAvanti, {{QString::number(anno)}});
    return somma(massimo.valore(0).value_or(u"0"_s), u"1"_s);
}

/// Where the waybill comes from, before what the original's clerk noted, which gives way where both do not
/// fit. larghezza: the column's, 0 for any length.
QString note(const RecordLdv& originale, const Contesto& contesto, qint64 larghezza)
{
    QStringList origine = {contesto.resoAMittente ? u"Reso a Mittente"_s : u"Riconsegna a Destinatario"_s};
    const Valore giacenza = originale.valore(u"LERFGI"_s);
    if (giacenza)
        origine << u"giacenza %1/%2"_s.arg(*giacenza, originale.valore(u"LEANGI"_s).value_or(QString()));
    origine << u"LDV originale %1"_s.arg(originale.valore(u"lenrlv"_s).value_or(QString()));
    const QString prima = originale.valore(u"lenote"_s).value_or(QString());
    const QString tutte = origine.join(u", "_s) + (prima.isEmpty() ? QString() : u"\r\n"_s + prima);
    if (larghezza <= 0 || tutte.size() <= larghezza)
        return tutte;
    return tutte.left(larghezza - 1).trimmed() + u'…';
}

void imposta(NuovaRiga& riga, const QString& colonna, const Valore& valore)
{
    if (valore)
        riga.imposta(colonna, valore);
}

void aggiungi(Connessione& connessione, const RecordLdv& originale, const Contesto& contesto,
              const LdvEmessa& chiave)
{
    const Luogo dove = contesto.resoAMittente ? mittente(connessione, originale) : destinatario(originale);
    NuovaRiga nuova(connessione, u"letve00f"_s);
    nuova.imposta(u"lefili"_s, chiave.filiale);
    nuova.imposta(u"lenrlv"_s, chiave.numero);
    nuova.imposta(u"leanlv"_s, QString::number(chiave.anno));
    nuova.imposta(u"ledtlv"_s, dataSql(chiave.data));
    for (const char16_t* copiata :
         {u"lecodi", u"lecmpe", u"lecdve", u"lelin1", u"lenatu", u"lerife", u"lerifd", u"lecoll", u"lepeso",
          u"levolu", u"levame", u"LERFGI", u"LEANGI"})
        imposta(nuova, QString::fromUtf16(copiata), originale.valore(QString::fromUtf16(copiata)));
    imposta(nuova, u"ledest"_s, dove.nome);
    imposta(nuova, u"leindd"_s, dove.indirizzo);
    imposta(nuova, u"lecapd"_s, dove.cap);
    imposta(nuova, u"lelocd"_s, dove.localita);
    imposta(nuova, u"leprod"_s, dove.provincia);
    nuova.imposta(u"lerico"_s, u"R"_s);
    imposta(nuova, u"leport"_s,
            contesto.porto != 0 ? Valore(QString::number(contesto.porto)) : originale.valore(u"leport"_s));
    // The sender takes his goods back: nothing is to be cashed, and nothing was paid in advance.
    for (const char16_t* importo : {u"lecnss", u"leanpc"}) {
        const QString colonna = QString::fromUtf16(importo);
        imposta(nuova, colonna, contesto.resoAMittente ? Valore(u"0"_s) : originale.valore(colonna));
    }
    nuova.imposta(u"lenote"_s, note(originale, contesto, nuova.larghezza(u"lenote"_s)));
    nuova.aggiungi();
}

void conferma(Transazione& transazione, const Connessione& connessione, const LdvEmessa& chiave)
{
    try {
        transazione.conferma();
    } catch (const ErroreDatabase&) {
        if (connessione.aperta())
            throw;
        throw ErroreEsitoIgnoto(
            u"Non si sa se la lettera di vettura %1/%2 è stata emessa: la connessione è caduta mentre "
            "l'archivio la confermava. Cercarla prima di ripetere."_s.arg(chiave.numero,
                                                                          QString::number(chiave.anno)));
    }
}

/// What the screen names must be what the waybill holds: a number typed over another case is nobody's
/// mandate.
void rifiutaSeDiAltraGiacenza(const RecordLdv& originale, const Contesto& contesto)
{
    const auto valore = [&](const QString& colonna) { return originale.valore(colonna).value_or(QString()); };
    if (contesto.numeroGiacenza.isEmpty() || (valore(u"LERFGI"_s) == contesto.numeroGiacenza &&
                                              valore(u"LEANGI"_s).toInt() == contesto.annoGiacenza))
        return;
    throw Errore(
        u"La lettera di vettura %1 non è della giacenza %2/%3: nessuna lettera di vettura è stata emessa."_s
            .arg(valore(u"lenrlv"_s), contesto.numeroGiacenza, QString::number(contesto.annoGiacenza)));
}

void rifiutaSeVuoto(const RecordLdv& originale)
{
    if (!originale.vuoto())
        return;
    if (originale.colonne().isEmpty())
        throw Errore(
            u"La lettera di vettura da cui partire non si è potuta leggere dall'archivio: nessuna lettera di "
            "vettura è stata emessa."_s);
    throw Errore(u"La lettera di vettura da cui partire non è stata trovata in archivio: nessuna lettera di "
                 "vettura è stata emessa."_s);
}

LdvEmessa inUnaTransazione(Connessione& connessione, const RecordLdv& originale, const Contesto& contesto,
                           bool colonnaNumero)
{
    Transazione transazione(connessione);
    mettiInFila(connessione);
    if (contesto.controlloGiacenza)
        ricontrolla(connessione, contesto);
    const int anno = contesto.oggi.year();
    const LdvEmessa chiave = {originale.valore(u"lefili"_s).value_or(QString()),
                              prossimoNumero(connessione, anno, colonnaNumero), anno, contesto.oggi,
                              contesto.resoAMittente ? inRighe(destinatario(originale)) : QString()};
    aggiungi(connessione, originale, contesto, chiave);
    conferma(transazione, connessione, chiave);
    return chiave;
}

} // namespace

LdvEmessa emettiLdv(Connessione& connessione, const RecordLdv& originale, const Contesto& contesto)
{
    rifiutaSeVuoto(originale);
    rifiutaSeDiAltraGiacenza(originale, contesto);
    const bool colonnaNumero = haColonnaNumero(connessione);
    // A number that another program took: the key of the waybill is the only one that the row can meet.
    return conTentativi(
        [&] { return inUnaTransazione(connessione, originale, contesto, colonnaNumero); },
        [](const ErroreDatabase& errore) { return perDoppione(errore) || perConcorrenza(errore); });
}

} // namespace giacenza
