#pragma once

#include "database/connessione.h"
#include "database/decimali.h"

#include <QDate>

#include <optional>

namespace giacenza {

/// Whether a waybill may be held.
enum class Ammissione : int
{
    ammessa = 1,
    giaInGiacenza = 2, ///< it has a held shipment already
    riconsegna = 3,    ///< it is itself a re-delivery
    sconosciuta = 4,   ///< there is no such waybill
};

/// What the operator hears of a waybill that is held already.
QString rifiutoGiaInGiacenza();

/// Reads the waybill's marks; only the first row counts. Throws ErroreDatabase.
Ammissione ControlloInserimento(Connessione& connessione, const QString& numeroLdv, QDate dataLdv);

/// What a new held shipment is made of. Codes, numbers and captions are the texts that they are on the
/// screen.
struct DatiGiacenza
{
    QString filiale = {};   ///< of the waybill
    QString numeroLdv = {}; ///< as it was found
    QDate dataLdv = {};     ///< its year is the key's
    QString cliente = {};
    QString filialeGiacenza = {}; ///< that holds the goods
    QString giorniSosta = {};
    std::optional<QDate> dataAvviso = {}; ///< this and the next four: not written when there is none
    std::optional<QDate> dataBuonFine = {};
    std::optional<Decimale> imponibile = {};
    QString giacenzaPrecedente = {};
    std::optional<QDate> dataPrecedente = {};
    QDate dataGiacenza = {};
    QString motivo = {};
};

/// The waybill is held by another held shipment, which the text names.
class ErroreGiaInGiacenza : public Errore
{
public:
    using Errore::Errore;
};

/// Adds the held shipment and links it on its waybill, in one transaction on a connection of its own; either
/// both are in the database or neither.
///
/// schermo: the screen's connection, on which the number is taken, outside the transaction: a failed save
/// leaves a gap in the series. accesso: the way to the database. Who loses the race for a number, or a
/// deadlock, tries again with the next one (conTentativi); who loses the answer to the confirmation looks
/// whether it was done; who loses the race for the waybill looks who holds it. Returns the number given.
/// Throws ErroreGiaInGiacenza and ErroreDatabase, with nothing written, and ErroreEsitoIgnoto when nobody can
/// say.
QString InserisciGiacenza(Connessione& schermo, const Accesso& accesso, const DatiGiacenza& dati);

} // namespace giacenza
