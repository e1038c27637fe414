#pragma once

#include "database/connessione.h"

#include <QDate>

namespace giacenza {

/// Whether a waybill may be held.
enum class Ammissione : int
{
    ammessa = 1,
    giaInGiacenza = 2, ///< it has a held shipment already
    riconsegna = 3,    ///< it is itself a re-delivery
    sconosciuta = 4,   ///< there is no such waybill
};

/// Reads the waybill's marks; only the first row counts. Throws ErroreDatabase.
Ammissione ControlloInserimento(Connessione& connessione, const QString& numeroLdv, QDate dataLdv);

/// What the screen holds when a held shipment is saved, as texts of its controls.
struct DatiGiacenza
{
    QString filiale = {};   ///< of the waybill
    QString numeroLdv = {}; ///< as it was found
    QString dataLdv = {};   ///< its year is the key's
    QString cliente = {};
    QString filialeGiacenza = {}; ///< that holds the goods
    QString giorniSosta = {};
    QString dataAvviso = {}; ///< this and the next four: not written when empty
    QString dataBuonFine = {};
    QString imponibile = {};
    QString giacenzaPrecedente = {};
    QString dataPrecedente = {};
    QString dataGiacenza = {};
    QString motivo = {};
};

/// Adds the held shipment and links it on its waybill, in one transaction on a connection of its own; either
/// both are in the database or neither.
///
/// schermo: the screen's connection, on which the number is taken, outside the transaction: a failed save
/// leaves a gap in the series. stringa: the connection string. Returns the number given. Throws
/// ErroreDatabase, and ErroreConversione for a date or an amount that is none; no number is taken then.
QString InserisciGiacenza(Connessione& schermo, const QString& stringa, const DatiGiacenza& dati);

} // namespace giacenza
