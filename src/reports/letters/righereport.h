#pragma once

#include "reports/engine/riga.h"

namespace giacenza::report {

/// The rows of a document: the held shipment's columns and its customer's, joined with those of its waybill.
/// A held shipment whose waybill is missing still gives its row.
///
/// chiave: held-shipment number + "_" + year. Throws Errore when it names no held shipment, ErroreDatabase.
std::vector<RigaReport> leggiRighe(Connessione& connessione, const QString& chiave);

/// The two halves of a document's key; throws Errore when it has no "_".
struct ParteChiave
{
    QString numero;
    QString anno;
};
ParteChiave separaChiave(const QString& chiave);

} // namespace giacenza::report
