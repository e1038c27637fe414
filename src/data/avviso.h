#pragma once

#include "data/connessione.h"
#include "data/istruzioni.h"

#include <optional>
#include <variant>

namespace giacenza {

/// By what a screen names the held shipment that it shows: the registration screen by its waybill, the
/// management screen by its own number.
using ChiaveCaso = std::variant<ChiaveSpedizione, ChiaveGiacenza>;

enum class ContoAvviso
{
    primo,       ///< the first notice: counted and dated
    successivo,  ///< one more, on a later day: counted and dated
    stessoGiorno ///< one was issued today, or the stored date lies ahead: nothing was written
};

/// Counts a notice on the held shipment, before it is printed.
///
/// connessione: where the update runs; stringa: the connection string on which the state is read, by a
/// connection of its own. descrizione: replaces GIDES1 from the second notice on, for a ChiaveGiacenza;
/// ignored otherwise. Throws ErroreDatabase, and ErroreConversione when the stored count is no 16-bit number
/// or the stored date no date: nothing is written then.
ContoAvviso contaAvviso(Connessione& connessione, const QString& stringa, const ChiaveCaso& chiave,
                        QDate oggi, const QString& descrizione = {});

} // namespace giacenza
