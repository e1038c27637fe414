#include "data/riconsegne.h"

#include <limits>

using namespace Qt::StringLiterals;

namespace giacenza {

qint16 ContaRecord(Recordset& righe)
{
    int conto = 0;
    for (righe.primo(); !righe.eof(); righe.successivo())
        if (++conto > std::numeric_limits<qint16>::max())
            throw ErroreConversione(
                u"Le riconsegne sono più di %1."_s.arg(std::numeric_limits<qint16>::max()));
    righe.primo();
    return static_cast<qint16>(conto);
}

ContoRiconsegne ContaRiconsegne(Connessione& connessione, const ChiaveGiacenza& chiave)
{
    Recordset legate;
    legate.apri(connessione, istruzioni::riconsegne(chiave));
    if (legate.eof())
        return {EsitoRiconsegne::inesistente};
    const auto precedenti = static_cast<qint16>(ContaRecord(legate) - 1);
    if (leggiGiorno(legate.valore(u"GIDTBF"_s).value_or(QString())))
        return {EsitoRiconsegne::chiusa};
    if (precedenti != 0)
        return {EsitoRiconsegne::giaRiconsegnata, precedenti};
    return {EsitoRiconsegne::emettibile};
}

} // namespace giacenza
