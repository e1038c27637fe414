#pragma once

#include "data/istruzioni.h"
#include "database/recordset.h"

namespace giacenza {

/// What the check of a held shipment found, by the numbers that the depot knows.
enum class EsitoRiconsegne : qint16
{
    emettibile = 1,      ///< open, not yet re-delivered
    inesistente = 2,     ///< no held shipment of that number and year
    chiusa = 3,          ///< closed, whatever its re-deliveries
    giaRiconsegnata = 4, ///< open, with earlier re-deliveries
};

struct ContoRiconsegne
{
    EsitoRiconsegne esito = EsitoRiconsegne::inesistente;
    qint16 riconsegne = 0; ///< the linked waybills less the first; 0 unless giaRiconsegnata
};

/// The rows of a result, from the first to the last; the first is current afterwards. Throws ErroreDatabase,
/// and ErroreConversione above 32767.
qint16 ContaRecord(Recordset& righe);

/// Whether a held shipment may be re-delivered. Throws what reading throws, and what ContaRecord throws.
ContoRiconsegne ContaRiconsegne(Connessione& connessione, const ChiaveGiacenza& chiave);

} // namespace giacenza
