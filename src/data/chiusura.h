#pragma once

#include "data/istruzioni.h"
#include "database/connessione.h"
#include "database/valori.h"

#include <optional>

namespace giacenza {

/// The closure date of a held shipment, read on a connection of its own: nothing when there is no such held
/// shipment or it is open. Throws ErroreDatabase.
std::optional<QDate> LeggiDataBuonFine(const Accesso& accesso, const ChiaveCaso& chiave);

/// A customer's billing terms of storage, as the database has them; amounts in euro.
struct CondizioniSosta
{
    Valore fisso;         ///< FADFGI, charged once
    Valore giorniFranchi; ///< FAFRGI, days that are not charged
    Valore alGiorno;      ///< FATGIG, for each day charged
    Valore minimo;        ///< FAMIGI, the least that is charged when a day is
};

/// The charges of a held shipment in euro.
struct ImportiGiacenza
{
    Decimale fisso;
    Decimale sosta;
};

/// The terms of the customer of a waybill; the first row when there are several, nothing when there is none.
/// Throws ErroreDatabase.
std::optional<CondizioniSosta> leggiCondizioni(Connessione& connessione, const QString& numeroLdv,
                                               int annoLdv);

/// The days that are charged: those of storage less the free ones, halves to even; zero or less within the
/// free days. giorni: as for calcolaImporti(). Throws ErroreConversione when FAFRGI is null, or days are no
/// 16-bit number.
qint16 giorniAddebitati(const CondizioniSosta& condizioni, const QString& giorni);

/// Works the charges out. giorni: the storage days as the screen shows them.
///
/// The days beyond the free ones are charged, rounded to cents, halves to even, and at least the minimum,
/// which is taken as it is. Within the free days only the fixed fee is due. Throws ErroreConversione when a
/// term that is needed is null, or days are no 16-bit number.
ImportiGiacenza calcolaImporti(const CondizioniSosta& condizioni, const QString& giorni);

} // namespace giacenza
