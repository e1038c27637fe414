#include "data/salvataggio.h"

#include "data/istruzioni.h"
#include "data/numerazione.h"
#include "database/recordset.h"
#include "database/transazione.h"

#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

QDate comeData(const QString& testo)
{
    if (const auto giorno = leggiData(testo))
        return *giorno;
    throw ErroreConversione(u"Manca una data, o non è valida: \"%1\"."_s.arg(testo));
}

using Riga = std::vector<std::pair<QString, Valore>>;

/// The columns of the new row in the order in which they are filled, all but the number, which comes last of
/// all so that a value that cannot be written costs no number.
Riga componiRiga(const DatiGiacenza& dati)
{
    const QDate dataGiacenza = comeData(dati.dataGiacenza);
    const QString annoLdv = QString::number(comeData(dati.dataLdv).year());
    Riga riga = {
        {u"GIFILI"_s, dati.filiale}, {u"GINRLV"_s, dati.numeroLdv},       {u"GIANLV"_s, annoLdv},
        {u"GICODI"_s, dati.cliente}, {u"GIFIGI"_s, dati.filialeGiacenza}, {u"GIGGSO"_s, dati.giorniSosta},
    };
    const auto seData = [&riga](const QString& colonna, const QString& testo) {
        if (!testo.isEmpty())
            riga.emplace_back(colonna, dataSql(comeData(testo)));
    };
    seData(u"GIDTAV"_s, dati.dataAvviso);
    seData(u"GIDTBF"_s, dati.dataBuonFine);
    if (QString importo = dati.imponibile; !importo.isEmpty())
        riga.emplace_back(u"GIIMGI"_s, FormattaNumero(importo));
    if (!dati.giacenzaPrecedente.isEmpty())
        riga.emplace_back(u"GIVNRG"_s, dati.giacenzaPrecedente);
    seData(u"GIVDTG"_s, dati.dataPrecedente);
    riga.emplace_back(u"GIDES1"_s, dati.dataGiacenza + u" - "_s + conRitorniACapo(dati.motivo));
    riga.emplace_back(u"GIANGI"_s, QString::number(dataGiacenza.year()));
    riga.emplace_back(u"GIDTGI"_s, dataSql(dataGiacenza));
    return riga;
}

} // namespace

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

QString InserisciGiacenza(Connessione& schermo, const QString& stringa, const DatiGiacenza& dati)
{
    const Riga riga = componiRiga(dati);
    Connessione connessione;
    connessione.apri(stringa);
    Transazione transazione(connessione);
    Recordset giacenze;
    giacenze.apriTabella(connessione, u"giace00f"_s);
    giacenze.aggiungi();
    for (const auto& [colonna, valore] : riga)
        giacenze.imposta(colonna, valore);
    const QString numero = ProssimoNumGiacenza(schermo);
    giacenze.imposta(u"GINRGI"_s, numero);
    giacenze.aggiorna();
    connessione.esegui(istruzioni::collegaGiacenza({numero, comeData(dati.dataGiacenza).year()},
                                                   dati.numeroLdv, comeData(dati.dataLdv).year()));
    transazione.conferma();
    return numero;
}

} // namespace giacenza
