#pragma once

#include "data/istruzioni.h"

/// The statements that find out, after a save that failed, what of it, or of another, is in the archive.
namespace giacenza::istruzioni {

/// conBlocco waits for a transaction that still holds the row, which a database that is a file neither needs
/// nor knows.
enum class Lettura
{
    semplice,
    conBlocco
};

/// GINRGI of a held shipment, if it is there and holds that waybill.
QString giacenzaRegistrata(const ChiaveGiacenza& nuova, const QString& numeroLdv, Lettura come);

/// LERFGI of a waybill, if it is linked to that held shipment.
QString legameRegistrato(const ChiaveGiacenza& nuova, const QString& numeroLdv, int annoLdv, Lettura come);

/// GINRGI, GIANGI and GIDTGI of the held shipment that holds a waybill, if one does.
QString giacenzaCheTiene(const ChiaveSpedizione& ldv);

} // namespace giacenza::istruzioni
