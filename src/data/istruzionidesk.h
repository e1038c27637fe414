#pragma once

#include <QString>

/// The texts that the depot's desk reads with. They only read, need no right that the screens do not have,
/// and work without the indexes that schema/ gives them. What is sought stands as "?", to be bound.
namespace giacenza::istruzioni {

/// The cases whose GIDTBF is null, by the day from which the goods are held, each with its waybill, customer,
/// storage terms, how many waybills are linked to it and of which day the last one is, and how many waybills
/// of other branches have its waybill's number and year: where there are any, the terms that the closure
/// charges by may be theirs. The columns have the order of ColonnaCaso.
QString casiAperti();
/// The same of the branch that holds the goods; where none is written, of the waybill's. Two parameters: its
/// code, twice.
QString casiApertiFiliale();

/// What a number may be. Each gives the same columns, in the order of ColonnaTrovata, the newest first.
QString ldvPerNumero();          ///< number
QString ldvPerNumeroAnno();      ///< number, year
QString ldvPerChiave();          ///< branch, number, year
QString ldvPerRiferimento();     ///< the customer's reference
QString giacenzaPerNumero();     ///< number of the held shipment
QString giacenzaPerNumeroAnno(); ///< its number, its year

/// A case with its waybill and terms, open or closed, in the order of ColonnaCaso and then of
/// ColonnaChiusura: number, year.
QString casoIntero();
/// The waybills linked to a case, the oldest first, the held one among them, in the order of ColonnaLegata:
/// number, year.
QString lettereLegate();

/// Positions of the columns of casiAperti() and casoIntero().
enum class ColonnaCaso
{
    ginrgi,
    giangi,
    gifili,
    ginrlv,
    gianlv,
    gicodi,
    gifigi,
    gidtgi,
    ginrav,
    gidtav,
    gides1,
    ledtlv,
    ledest,
    lelocd,
    leprod,
    lerife,
    lecoll,
    lepeso,
    ragioneSociale,
    facodi,
    fadfgi,
    fafrgi,
    fatgig,
    famigi,
    legate,
    ultimaLegata,
    omonime, ///< waybills of other branches with the same number and year
    quante,
};

/// What casoIntero() gives besides.
enum class ColonnaChiusura
{
    gidtbf = static_cast<int>(ColonnaCaso::quante),
    giggso,
    giimgi,
    fissoGiacenza,
    ginrfa,
    gidtfa,
    givnrg,
    givdtg,
};

/// Positions of the columns of what finds by a number.
enum class ColonnaTrovata
{
    lefili,
    lenrlv,
    leanlv,
    ledtlv,
    lecodi,
    ragioneSociale,
    ledest,
    lelocd,
    lerife,
    lerico,
    ginrgi, ///< of the case that this waybill is held in; else of the one that it is linked to
    giangi,
    gidtgi,
    gidtbf,
    sua, ///< 1 when the waybill is the one that is held
};

/// Positions of the columns of lettereLegate().
enum class ColonnaLegata
{
    lefili,
    lenrlv,
    leanlv,
    ledtlv,
    lerico,
    ledest,
    lelocd,
    leflbc,
    ledtco,
    lenote,
};

} // namespace giacenza::istruzioni
