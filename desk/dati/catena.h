#pragma once

#include "desk/dati/documenti.h"
#include "desk/dati/regole.h"

namespace giacenza::desk {

/// What a step of a case's life is.
enum class TipoPasso
{
    lettera,  ///< the waybill that is held
    giacenza, ///< it was put in storage
    avviso,   ///< the notices that were sent
    documento,
    riconsegna,
    reso,
    buonFine,
};

/// "LDV", "Giacenza", "Avviso", "Documento", "Riconsegna", "Reso", "Buon fine".
QString parole(TipoPasso tipo);

struct Passo
{
    TipoPasso tipo;
    QDate giorno; ///< invalid: unknown
    QString testo;
    QString file; ///< a document that can be opened, absolute; else empty
};

/// A case with its whole chain.
struct Catena
{
    RigaCaso riga;
    QDate buonFine;  ///< invalid: open
    QString giorni;  ///< of storage, as the closure wrote them; empty: none yet
    QString importo; ///< storage amount that is written on the case; empty: none
    QString fisso;   ///< fixed fee that is written on the case; empty: none
    QString fattura; ///< number and date of the invoice; empty: none
    std::vector<Passo> passi;
};

/// Reads a case; nothing when there is none. Throws ErroreDatabase.
std::optional<Catena> leggiCatena(Connessione& connessione, const ChiaveGiacenza& chiave,
                                  const Cartelle& cartelle, QDate oggi, int giorniFerma);

} // namespace giacenza::desk
