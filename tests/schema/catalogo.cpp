#include "catalogo.h"

#include "data/istruzioni.h"
#include "data/istruzionidesk.h"
#include "data/istruzioniemissione.h"
#include "data/istruzioniestratto.h"
#include "data/istruzioniprova.h"
#include "data/istruzionireport.h"
#include "data/istruzioniricerca.h"
#include "data/istruzionisoggetti.h"
#include "data/istruzioniverifica.h"

#include <stdexcept>

namespace giacenza::prove {

namespace {

using namespace giacenza::istruzioni;
using namespace Qt::StringLiterals;

/// The keys of one waybill that is held and has a sender reference.
struct Campione
{
    ChiaveSpedizione spedizione;
    ChiaveGiacenza giacenza;
    QDate data;
    QDate dataGiacenza;
    QString riferimento;
    QDate dataRiferimento;
    QString cliente;
};

Campione campione(const BancaDati& base)
{
    const QList<QStringList> righe = base.righe(
        u"select gifili, ginrlv, gianlv, ginrgi, giangi, ledtlv, gidtgi, lerife, lerifd, lecodi "
        "from giace00f inner join letve00f on lefili=gifili and lenrlv=ginrlv and leanlv=gianlv "
        "where lerife like 'DDT%' and gidtbf is null order by giangi desc, cast(ginrgi as unsigned)"_s);
    if (righe.isEmpty())
        throw std::runtime_error("nessuna giacenza nel database");
    const QStringList& r = righe.first();
    const auto data = [&r](qsizetype i) { return QDate::fromString(r.at(i), Qt::ISODate); };
    return {{r.at(0), r.at(1), r.at(2).toInt()},
            {r.at(3), r.at(4).toInt()},
            data(5),
            data(6),
            r.at(7),
            data(8),
            r.at(9)};
}

std::vector<VoceCatalogo> ricerche(const Campione& c)
{
    DatiRicerca dati;
    dati.cliente = c.cliente;
    dati.filiale = c.spedizione.filiale;
    dati.riferimento = c.riferimento;
    dati.numero = c.spedizione.numero;
    dati.giacenza = c.giacenza.numero;
    dati.annoGiacenza = QString::number(c.giacenza.anno);
    dati.annoCorrente = c.giacenza.anno;
    DatiRicerca conAnno = dati;
    conAnno.annoOData = QString::number(c.spedizione.anno);
    DatiRicerca numero = dati;
    numero.valore = c.spedizione.numero;
    DatiRicerca numeroEAnno = numero;
    numeroEAnno.annoOData = conAnno.annoOData;
    DatiRicerca riferimento = dati;
    riferimento.valore = c.riferimento;
    DatiRicerca giorno = dati;
    giorno.annoOData = c.dataGiacenza.toString(u"dd/MM/yyyy"_s);
    return {
        {u"ricercaApertura 1"_s, ricercaApertura(ModoRicerca::riferimento, dati)},
        {u"ricercaApertura 1 anno"_s, ricercaApertura(ModoRicerca::riferimento, conAnno)},
        {u"ricercaApertura 7"_s, ricercaApertura(ModoRicerca::letteraVettura, dati)},
        {u"ricercaApertura 7 anno"_s, ricercaApertura(ModoRicerca::letteraVettura, conAnno)},
        {u"ricercaApertura 10"_s, ricercaApertura(ModoRicerca::riconsegne, dati)},
        {u"ricercaApertura 11"_s, ricercaApertura(ModoRicerca::giacenze, dati)},
        {u"ricercaVisualizza 1"_s, ricercaVisualizza(ModoRicerca::riferimento, riferimento)},
        {u"ricercaVisualizza 7"_s, ricercaVisualizza(ModoRicerca::letteraVettura, numero)},
        {u"ricercaVisualizza 7 anno"_s, ricercaVisualizza(ModoRicerca::letteraVettura, numeroEAnno)},
        {u"ricercaVisualizza 11"_s, ricercaVisualizza(ModoRicerca::giacenze, giorno)},
    };
}

/// The search of a party, on the one table of parties that grows.
std::vector<VoceCatalogo> soggetti(const Campione& c)
{
    const auto voce = [](const QString& nome, CampoSoggetto campo, const QString& parametro) {
        return VoceCatalogo{u"ricercaSoggetti "_s + nome, ricercaSoggetti(u"Clien"_s, campo), {parametro}};
    };
    return {
        voce(u"codice"_s, CampoSoggetto::codice, c.cliente),
        voce(u"partitaIva"_s, CampoSoggetto::partitaIva, u"01000000016"_s),
        voce(u"ragioneSociale"_s, CampoSoggetto::ragioneSociale, modelloSoggetti(u"Ferr"_s, false)),
        voce(u"localita"_s, CampoSoggetto::localita, modelloSoggetti(u"Milano"_s, false)),
        voce(u"provincia"_s, CampoSoggetto::provincia, modelloSoggetti(u"MI"_s, false)),
    };
}

std::vector<VoceCatalogo> letture(const Campione& c)
{
    const QString& numero = c.spedizione.numero;
    return {
        {u"spedizionePerNumeroDataFiliale"_s,
         spedizionePerNumeroDataFiliale(numero, c.data, c.spedizione.filiale)},
        {u"spedizionePerNumeroData esterna"_s,
         spedizionePerNumeroData(numero, c.data, Giunzione::esternaMinuscola)},
        {u"spedizionePerNumeroData interna"_s, spedizionePerNumeroData(numero, c.data, Giunzione::interna)},
        {u"spedizionePerRiferimento"_s,
         spedizionePerRiferimento(c.riferimento, c.dataRiferimento, c.spedizione.filiale)},
        {u"spedizionePerGiacenza"_s, spedizionePerGiacenza(c.giacenza.numero, c.dataGiacenza)},
        {u"spedizioneIntera"_s, spedizioneIntera(c.spedizione)},
        {u"clientePerCodice"_s, clientePerCodice(c.cliente)},
        {u"elencoFiliali"_s, elencoFiliali()},
        {u"descrizioneFiliale"_s, descrizioneFiliale(c.spedizione.filiale)},
        {u"filialeIntera"_s, filialeIntera(c.spedizione.filiale)},
        {u"elencoPorto"_s, elencoPorto()},
        {u"ammissione"_s, ammissione(numero, c.data)},
        {u"ultimoNumGiacenza"_s, ultimoNumGiacenza()},
        {u"statoAvviso giacenza"_s, statoAvviso(c.giacenza)},
        {u"statoAvviso spedizione"_s, statoAvviso(c.spedizione)},
        {u"istruzioniAvviso"_s, istruzioniAvviso()},
        {u"dataBuonFine giacenza"_s, dataBuonFine(c.giacenza)},
        {u"dataBuonFine spedizione"_s, dataBuonFine(c.spedizione)},
        {u"condizioniFatturazione anno"_s, condizioniFatturazione(numero, c.spedizione.anno)},
        {u"condizioniFatturazione data"_s, condizioniFatturazione(numero, c.data)},
        {u"riconsegne"_s, riconsegne(c.giacenza)},
        {u"giacenzaReport"_s, giacenzaReport(c.giacenza.numero, QString::number(c.giacenza.anno))},
        {u"spedizioneReport"_s,
         spedizioneReport(c.spedizione.filiale, numero, QString::number(c.spedizione.anno))},
    };
}

/// What the issue of a waybill sends on that database. The waybill of the held shipment stands for the one
/// that is issued.
std::vector<VoceCatalogo> emissione(const Campione& c, Dialetto dialetto)
{
    const QString anno = QString::number(c.spedizione.anno);
    std::vector<VoceCatalogo> voci{
        {u"indirizzoCliente"_s, indirizzoCliente(), {c.cliente}},
        {u"codaEmittenti"_s, codaEmittenti()},
        {u"ultimoNumeroLdv"_s, ultimoNumeroLdv(dialetto), {anno}},
        {u"portoPerNumero"_s, portoPerNumero(), {u"1"_s}},
    };
    if (dialetto == Dialetto::sqlite)
        voci.push_back({u"annoDiProva"_s, annoDiProva()});
    if (dialetto == Dialetto::mariadb) {
        voci.push_back({u"comeSiChiamanoLeTabelle"_s, comeSiChiamanoLeTabelle()});
        voci.push_back({u"colonnaNumeroLdv"_s, colonnaNumeroLdv()});
        voci.push_back({u"ultimoNumeroLdvDaColonna"_s, ultimoNumeroLdvDaColonna(), {anno}});
    }
    return voci;
}

/// What is asked after a save that failed.
std::vector<VoceCatalogo> verifica(const Campione& c, Dialetto dialetto)
{
    const Lettura come = dialetto == Dialetto::mariadb ? Lettura::conBlocco : Lettura::semplice;
    return {
        {u"giacenzaRegistrata"_s, giacenzaRegistrata(c.giacenza, c.spedizione.numero, come)},
        {u"legameRegistrato"_s, legameRegistrato(c.giacenza, c.spedizione.numero, c.spedizione.anno, come)},
        {u"giacenzaCheTiene"_s, giacenzaCheTiene(c.spedizione)},
    };
}

/// What the desk reads.
std::vector<VoceCatalogo> desk(const Campione& c)
{
    const QString annoLdv = QString::number(c.spedizione.anno);
    const QString annoGiacenza = QString::number(c.giacenza.anno);
    const QString& numero = c.spedizione.numero;
    return {
        {u"casiAperti"_s, casiAperti()},
        {u"casiApertiFiliale"_s, casiApertiFiliale(), {c.spedizione.filiale, c.spedizione.filiale}},
        {u"ldvPerNumero"_s, ldvPerNumero(), {numero}},
        {u"ldvPerNumeroAnno"_s, ldvPerNumeroAnno(), {numero, annoLdv}},
        {u"ldvPerChiave"_s, ldvPerChiave(), {c.spedizione.filiale, numero, annoLdv}},
        {u"ldvPerRiferimento"_s, ldvPerRiferimento(), {c.riferimento}},
        {u"giacenzaPerNumero"_s, giacenzaPerNumero(), {c.giacenza.numero}},
        {u"giacenzaPerNumeroAnno"_s, giacenzaPerNumeroAnno(), {c.giacenza.numero, annoGiacenza}},
        {u"casoIntero"_s, casoIntero(), {c.giacenza.numero, annoGiacenza}},
        {u"lettereLegate"_s, lettereLegate(), {c.giacenza.numero, annoGiacenza}},
    };
}

/// What the statement of a customer reads.
std::vector<VoceCatalogo> estratto(const Campione& c)
{
    const QString giorno = c.dataGiacenza.toString(Qt::ISODate);
    return {
        {u"clientiConAperte"_s, clientiConAperte()},
        {u"giacenzeCliente"_s, giacenzeCliente(), {c.cliente, giorno, giorno}},
        {u"ldvCollegate"_s, ldvCollegate(), {c.giacenza.numero, QString::number(c.giacenza.anno)}},
    };
}

std::vector<VoceCatalogo> scritture(const Campione& c)
{
    const QDate oggi = c.dataGiacenza.addDays(1);
    return {
        {u"collegaGiacenza"_s, collegaGiacenza(c.giacenza, c.spedizione.numero, c.spedizione.anno)},
        {u"aggiornaUltimoNumGiacenza"_s, aggiornaUltimoNumGiacenza(u"90000"_s)},
        {u"primoAvviso giacenza"_s, primoAvviso(c.giacenza, oggi)},
        {u"primoAvviso spedizione"_s, primoAvviso(c.spedizione, oggi)},
        {u"avvisoSuccessivo giacenza"_s, avvisoSuccessivo(c.giacenza, 2, oggi, u"RIFIUTA LA MERCE"_s)},
        {u"avvisoSuccessivo spedizione"_s, avvisoSuccessivo(c.spedizione, 2, oggi)},
        {u"chiusura"_s, chiusura(c.giacenza, oggi, u"1"_s)},
        {u"chiusuraRipetuta"_s, chiusuraRipetuta(c.giacenza, u"1"_s)},
        {u"salvaCosti"_s, salvaCosti(c.spedizione, Decimale(u"2,50"_s), Decimale(u"15"_s))},
    };
}

} // namespace

std::vector<VoceCatalogo> catalogo(const BancaDati& base)
{
    const Campione c = campione(base);
    std::vector<VoceCatalogo> tutte = letture(c);
    const Dialetto dialetto = base.connessione().dialetto();
    for (const auto& altre : {scritture(c), ricerche(c), soggetti(c), emissione(c, dialetto),
                              verifica(c, dialetto), desk(c), estratto(c)})
        tutte.insert(tutte.end(), altre.begin(), altre.end());
    return tutte;
}

} // namespace giacenza::prove
