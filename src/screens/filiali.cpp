#include "screens/filiali.h"

#include "data/istruzioni.h"
#include "database/recordset.h"

namespace giacenza {

void Filiali::leggi(Connessione& connessione)
{
    mCodici.clear();
    try {
        Recordset righe;
        righe.apri(connessione, istruzioni::elencoFiliali(), Recordset::Cursore::soloAvanti);
        for (; !righe.eof(); righe.successivo())
            mCodici.insert(righe.valore(0).value_or(QString()).toUpper());
    } catch (const ErroreDatabase&) {
        // The screen works without hints; whatever else needs the branches tells that they cannot be read.
        mCodici.clear();
    }
}

bool Filiali::sconosciuta(const QString& codice) const
{
    return !mCodici.isEmpty() && !codice.isEmpty() && !mCodici.contains(codice.toUpper());
}

} // namespace giacenza
