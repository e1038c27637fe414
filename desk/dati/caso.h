#pragma once

#include "data/chiusura.h"
#include "data/istruzioni.h"
#include "database/recordset.h"

#include <optional>

namespace giacenza::desk {

/// A held shipment as the desk shows it, as the database has it. Texts are empty and dates invalid where it
/// has null.
struct Caso
{
    ChiaveGiacenza chiave;
    ChiaveSpedizione ldv; ///< the waybill that is held
    QDate dataLdv;
    QString cliente; ///< its code
    QString ragioneSociale;
    QString destinatario;
    QString localita;
    QString provincia;
    QString riferimento; ///< the customer's own
    QString motivo;      ///< several lines
    QString filiale;     ///< that holds the goods; the waybill's where none is written
    QDate dal;           ///< held since
    QString avvisi;      ///< how many notices, a text as the database keeps it; empty: none yet
    QDate ultimoAvviso;
    int riconsegne = 0; ///< waybills linked to it, less the held one
    QDate ultimaLegata; ///< the day of the newest of them all
    int colli = 0;
    QString peso;                              ///< kg, an exact decimal; empty: unknown
    std::optional<CondizioniSosta> condizioni; ///< nothing: the customer has none
};

/// The row of casiAperti() or casoIntero(), with the terms that a closure would charge by. connessione: the
/// one that the row is read on. Throws ErroreDatabase.
Caso leggiCaso(const Recordset& riga, Connessione& connessione);

/// "231/2026".
QString nomeGiacenza(const ChiaveGiacenza& chiave);
/// "4711/2026 MI".
QString nomeLdv(const ChiaveSpedizione& ldv);

/// Texts of several lines in one, blanks drawn together.
QString inUnaRiga(const QString& testo);

} // namespace giacenza::desk
