#pragma once

#include "data/esitoignoto.h"
#include "database/connessione.h"

#include <giacenza/Contesto.h>
#include <giacenza/EmittenteLdv.h>

namespace giacenza {

/// A waybill that was issued: its key, and what its row has no column for.
struct LdvEmessa
{
    QString filiale;
    QString numero;
    int anno = 0;
    QDate data;
    QString mittente; ///< of a return: the recipient who sends the goods back: name, address, town, a line
                      ///< each; else empty
};

/// Adds the waybill that follows another one: one row, in one transaction of the connection, or nothing.
///
/// The number is the highest of the year over all branches, plus one; two issuers at once get two numbers.
/// With the check on, the held shipment is counted again inside the transaction.
///
/// Throws Errore, with a text for the operator, when the record is empty, when the sender of a return is not
/// among the customers, and when another workstation was faster; ErroreEsitoIgnoto when
/// the connection went while the database confirmed; ErroreDatabase for the rest.
LdvEmessa emettiLdv(Connessione& connessione, const RecordLdv& originale, const Contesto& contesto);

} // namespace giacenza
