#include "data/salvataggio.h"

#include "data/istruzioniverifica.h"
#include "data/numerazione.h"
#include "data/verificasalvataggio.h"
#include "database/nuovariga.h"
#include "database/recordset.h"
#include "database/sql.h"
#include "database/tentativi.h"
#include "database/transazione.h"

#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

using Riga = std::vector<std::pair<QString, Valore>>;

/// The columns of the new row in the order in which they are filled, all but the number, which comes last of
/// all so that a value that cannot be written costs no number.
Riga componiRiga(const DatiGiacenza& dati)
{
    Riga riga = {
        {u"GIFILI"_s, dati.filiale},
        {u"GINRLV"_s, dati.numeroLdv},
        {u"GIANLV"_s, QString::number(dati.dataLdv.year())},
        {u"GICODI"_s, dati.cliente},
        {u"GIFIGI"_s, dati.filialeGiacenza},
        {u"GIGGSO"_s, dati.giorniSosta},
    };
    const auto sePresente = [&riga](const QString& colonna, std::optional<QDate> giorno) {
        if (giorno)
            riga.emplace_back(colonna, sql::data(*giorno));
    };
    sePresente(u"GIDTAV"_s, dati.dataAvviso);
    sePresente(u"GIDTBF"_s, dati.dataBuonFine);
    if (dati.imponibile) {
        QString importo = dati.imponibile->testo();
        riga.emplace_back(u"GIIMGI"_s, FormattaNumero(importo));
    }
    if (!dati.giacenzaPrecedente.isEmpty())
        riga.emplace_back(u"GIVNRG"_s, dati.giacenzaPrecedente);
    sePresente(u"GIVDTG"_s, dati.dataPrecedente);
    riga.emplace_back(u"GIDES1"_s, dataBreve(dati.dataGiacenza) + u" - "_s + conRitorniACapo(dati.motivo));
    riga.emplace_back(u"GIANGI"_s, QString::number(dati.dataGiacenza.year()));
    riga.emplace_back(u"GIDTGI"_s, sql::data(dati.dataGiacenza));
    return riga;
}

/// The key of number and year is ours: that another workstation took the number first is a race, which the
/// next number ends. That the waybill is held already is none.
bool numeroPreso(const ErroreDatabase& errore)
{
    return errore.testo().contains("giace_numero"_L1, Qt::CaseInsensitive) ||
           errore.testo().contains("giace00f.GIANGI, giace00f.GINRGI"_L1, Qt::CaseInsensitive);
}

void conferma(Transazione& transazione, const Connessione& connessione, const Accesso& accesso,
              const ChiaveGiacenza& nuova, const DatiGiacenza& dati)
{
    try {
        transazione.conferma();
    } catch (const ErroreDatabase&) {
        // A refusal is a refusal; an answer that never came may be a confirmation.
        if (connessione.aperta() ||
            !salvataggioRegistrato(accesso, nuova, {dati.filiale, dati.numeroLdv, dati.dataLdv.year()}))
            throw;
    }
}

/// One try, from the connection to the confirmation.
QString inUnaTransazione(Connessione& schermo, const Accesso& accesso, const Riga& riga,
                         const DatiGiacenza& dati)
{
    Connessione connessione;
    connessione.apri(accesso);
    Transazione transazione(connessione);
    NuovaRiga giacenza(connessione, u"giace00f"_s);
    for (const auto& [colonna, valore] : riga)
        giacenza.imposta(colonna, valore);
    const ChiaveGiacenza nuova = {ProssimoNumGiacenza(schermo), dati.dataGiacenza.year()};
    giacenza.imposta(u"GINRGI"_s, nuova.numero);
    giacenza.aggiungi();
    connessione.esegui(istruzioni::collegaGiacenza(nuova, dati.numeroLdv, dati.dataLdv.year()));
    conferma(transazione, connessione, accesso, nuova, dati);
    return nuova.numero;
}

/// The admission check's refusal, and which held shipment it is that holds the waybill; empty when none does,
/// or when it cannot be read: what the insert met with is then told. Between the check and the insert another
/// workstation may have been faster; a waybill whose mark nobody set passes the check however long it is
/// held.
QString giaTenuta(Connessione& schermo, const DatiGiacenza& dati)
{
    try {
        Recordset giacenza;
        giacenza.apri(schermo,
                      istruzioni::giacenzaCheTiene({dati.filiale, dati.numeroLdv, dati.dataLdv.year()}));
        if (giacenza.eof())
            return {};
        const auto testo = [&](int colonna) { return giacenza.valore(colonna).value_or(QString()); };
        const auto dal = leggiGiorno(testo(2));
        return u"%1 La LDV %2 è già la giacenza %3/%4%5."_s.arg(
            rifiutoGiaInGiacenza(), dati.numeroLdv, testo(0), testo(1),
            dal ? u" del "_s + dataBreve(*dal) : QString());
    } catch (const ErroreDatabase&) {
        return {};
    }
}

} // namespace

QString rifiutoGiaInGiacenza()
{
    return u"Giacenza esistente impossibile inserirla in database."_s;
}

Ammissione ControlloInserimento(Connessione& connessione, const QString& numeroLdv, QDate dataLdv)
{
    Recordset spedizione;
    spedizione.apri(connessione, istruzioni::ammissione(numeroLdv, dataLdv));
    if (spedizione.eof())
        return Ammissione::sconosciuta;
    if (spedizione.valore(0) == u"R"_s)
        return Ammissione::riconsegna;
    const auto contieneNumero = [&](int colonna) {
        return eNumero(spedizione.valore(colonna).value_or(QString()));
    };
    return contieneNumero(1) && contieneNumero(2) ? Ammissione::giaInGiacenza : Ammissione::ammessa;
}

QString InserisciGiacenza(Connessione& schermo, const Accesso& accesso, const DatiGiacenza& dati)
{
    const Riga riga = componiRiga(dati);
    try {
        return conTentativi(
            [&] { return inUnaTransazione(schermo, accesso, riga, dati); },
            [](const ErroreDatabase& errore) { return numeroPreso(errore) || perConcorrenza(errore); });
    } catch (const ErroreDatabase& errore) {
        if (perDoppione(errore) && !numeroPreso(errore))
            if (const QString tenuta = giaTenuta(schermo, dati); !tenuta.isEmpty())
                throw ErroreGiaInGiacenza(tenuta);
        throw;
    }
}

} // namespace giacenza
