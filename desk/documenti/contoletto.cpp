#include "desk/documenti/contoletto.h"

#include "data/istruzionireport.h"

using namespace Qt::StringLiterals;

namespace giacenza::documenti {

DatiConto datiConto(const Recordset& riga)
{
    const auto testo = [&](const QString& colonna) {
        return riga.indice(colonna) < 0 ? QString() : riga.valore(colonna).value_or(QString());
    };
    const auto giorno = [&](const QString& colonna) { return leggiGiorno(testo(colonna)); };
    DatiConto dati;
    dati.caso = {testo(u"GINRGI"_s), testo(u"GIANGI"_s).toInt()};
    dati.ldv = {testo(u"GIFILI"_s), testo(u"GINRLV"_s), testo(u"GIANLV"_s).toInt()};
    dati.cliente = testo(u"GICODI"_s);
    dati.ragioneSociale = testo(u"RagioneSociale"_s);
    dati.destinatario = testo(u"ledest"_s);
    dati.dal = giorno(u"GIDTGI"_s);
    dati.buonFine = giorno(u"GIDTBF"_s);
    dati.giorniScritti = riga.valore(u"GIGGSO"_s);
    dati.sostaScritta = riga.valore(u"GIIMGI"_s);
    dati.fissoScritto = riga.valore(u"FissoGiacenza"_s);
    dati.fattura = testo(u"GINRFA"_s);
    dati.dataFattura = giorno(u"GIDTFA"_s);
    dati.precedente = testo(u"GIVNRG"_s);
    dati.dataPrecedente = giorno(u"GIVDTG"_s);
    return dati;
}

DatiConto leggiDatiConto(Connessione& connessione, const ChiaveGiacenza& caso)
{
    const QString anno = QString::number(caso.anno);
    Recordset riga;
    riga.apri(connessione, istruzioni::giacenzaReport(caso.numero, anno));
    if (riga.eof())
        throw Errore(u"La giacenza %1 del %2 non c'è."_s.arg(caso.numero, anno));
    DatiConto dati = datiConto(riga);
    dati.condizioni = leggiCondizioni(connessione, dati.ldv.numero, dati.ldv.anno);
    Recordset spedizione;
    spedizione.apri(connessione, istruzioni::spedizioneReport(dati.ldv.filiale, dati.ldv.numero,
                                                              QString::number(dati.ldv.anno)));
    if (!spedizione.eof())
        dati.destinatario = spedizione.valore(u"ledest"_s).value_or(QString());
    return dati;
}

} // namespace giacenza::documenti
