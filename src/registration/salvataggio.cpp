#include "registration/salvataggio.h"

#include "data/istruzioni.h"
#include "data/numerazione.h"
#include "data/recordset.h"
#include "data/transazione.h"

#include <utility>
#include <vector>

namespace giacenza {

namespace {

QDate comeData(const QString& testo)
{
    if (const auto giorno = leggiData(testo))
        return *giorno;
    throw ErroreConversione(QStringLiteral("Manca una data, o non è valida: \"%1\".").arg(testo));
}

using Riga = std::vector<std::pair<QString, Valore>>;

/// The columns of the new row in the order in which they are filled, all but the number, which comes last of
/// all so that a value that cannot be written costs no number.
Riga componiRiga(const DatiGiacenza& dati)
{
    const QDate dataGiacenza = comeData(dati.dataGiacenza);
    const QString annoLdv = QString::number(comeData(dati.dataLdv).year());
    Riga riga = {
        {QStringLiteral("GIFILI"), dati.filiale},
        {QStringLiteral("GINRLV"), dati.numeroLdv},
        {QStringLiteral("GIANLV"), annoLdv},
        {QStringLiteral("GICODI"), dati.cliente},
        {QStringLiteral("GIFIGI"), dati.filialeGiacenza},
        {QStringLiteral("GIGGSO"), dati.giorniSosta},
    };
    const auto seData = [&riga](const QString& colonna, const QString& testo) {
        if (!testo.isEmpty())
            riga.emplace_back(colonna, dataSql(comeData(testo)));
    };
    seData(QStringLiteral("GIDTAV"), dati.dataAvviso);
    seData(QStringLiteral("GIDTBF"), dati.dataBuonFine);
    if (QString importo = dati.imponibile; !importo.isEmpty())
        riga.emplace_back(QStringLiteral("GIIMGI"), FormattaNumero(importo));
    if (!dati.giacenzaPrecedente.isEmpty())
        riga.emplace_back(QStringLiteral("GIVNRG"), dati.giacenzaPrecedente);
    seData(QStringLiteral("GIVDTG"), dati.dataPrecedente);
    riga.emplace_back(QStringLiteral("GIDES1"),
                      dati.dataGiacenza + QStringLiteral(" - ") + conRitorniACapo(dati.motivo));
    riga.emplace_back(QStringLiteral("GIANGI"), QString::number(dataGiacenza.year()));
    riga.emplace_back(QStringLiteral("GIDTGI"), dataSql(dataGiacenza));
    return riga;
}

} // namespace

Ammissione ControlloInserimento(Connessione& connessione, const QString& numeroLdv, QDate dataLdv)
{
    Recordset spedizione;
    spedizione.apri(connessione, istruzioni::ammissione(numeroLdv, dataLdv));
    if (spedizione.eof())
        return Ammissione::sconosciuta;
    if (spedizione.valore(0) == QStringLiteral("R"))
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
    giacenze.apriTabella(connessione, QStringLiteral("giace00f"));
    giacenze.aggiungi();
    for (const auto& [colonna, valore] : riga)
        giacenze.imposta(colonna, valore);
    const QString numero = ProssimoNumGiacenza(schermo);
    giacenze.imposta(QStringLiteral("GINRGI"), numero);
    giacenze.aggiorna();
    connessione.esegui(istruzioni::collegaGiacenza({numero, comeData(dati.dataGiacenza).year()},
                                                   dati.numeroLdv, comeData(dati.dataLdv).year()));
    transazione.conferma();
    return numero;
}

} // namespace giacenza
