#include "data/verificasalvataggio.h"

#include "data/istruzioniverifica.h"
#include "database/recordset.h"

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

bool trovata(Connessione& connessione, const QString& istruzione)
{
    Recordset riga;
    riga.apri(connessione, istruzione);
    return !riga.eof();
}

} // namespace

bool salvataggioRegistrato(const Accesso& accesso, const ChiaveGiacenza& nuova, const ChiaveSpedizione& ldv)
{
    try {
        Connessione connessione;
        connessione.apri(accesso);
        const auto come = connessione.dialetto() == Dialetto::mariadb ? istruzioni::Lettura::conBlocco
                                                                      : istruzioni::Lettura::semplice;
        return trovata(connessione, istruzioni::giacenzaRegistrata(nuova, ldv.numero, come)) &&
               trovata(connessione, istruzioni::legameRegistrato(nuova, ldv.numero, ldv.anno, come));
    } catch (const ErroreDatabase&) {
        throw ErroreEsitoIgnoto(
            u"Non si sa se la giacenza %1/%2 è stata registrata: l'archivio non risponde più. Quando "
            u"risponde, "
            "richiamarla in gestione con il numero e la data; se non c'è, ripetere il salvataggio."_s.arg(
                nuova.numero, QString::number(nuova.anno)));
    }
}

} // namespace giacenza
