#pragma once

#include <QString>

namespace giacenza {

/// What the shipment search lists; the numbers are those that screens hand it.
enum class ModoRicerca : int
{
    riferimento = 1,    ///< a customer's waybills, from a sender reference on
    letteraVettura = 7, ///< a customer's waybills, from a number on
    riconsegne = 10,    ///< the waybills linked to a held shipment
    giacenze = 11       ///< a customer's held shipments
};

/// Whether the lists of a mode come in an order. The others come as the database finds the rows, and a part
/// of one is not the beginning of the whole.
constexpr bool inOrdine(ModoRicerca modo)
{
    return modo == ModoRicerca::riferimento || modo == ModoRicerca::letteraVettura;
}

/// What the statements of the shipment search are made of; a mode reads only what it needs.
struct DatiRicerca
{
    QString cliente; ///< code, digits only in modes riferimento and letteraVettura
    QString filiale;
    QString riferimento;  ///< the sender reference to start from, at opening
    QString numero;       ///< the waybill number to start from, at opening
    QString annoOData;    ///< a year or a date, as handed over or as typed
    QString giacenza;     ///< the held shipment of mode riconsegne
    QString annoGiacenza; ///< its year, digits only
    QString valore;       ///< as typed over the list, where the list is shown again
    int annoCorrente = 0; ///< of today, for mode giacenze at opening
};

} // namespace giacenza

namespace giacenza::istruzioni {

/// The list at opening. A numeric annoOData narrows modes riferimento and letteraVettura to that year. Throws
/// ErroreDatabase (42000) for a value that would leave its place.
QString ricercaApertura(ModoRicerca modo, const DatiRicerca& dati);

/// The list for what was typed: valore and annoOData (a date in mode giacenze; a year, or empty, in mode
/// letteraVettura). Empty in mode riconsegne, whose list cannot be narrowed. Throws as above; so do an empty
/// valore in mode letteraVettura and what is no date in mode giacenze.
QString ricercaVisualizza(ModoRicerca modo, const DatiRicerca& dati);

} // namespace giacenza::istruzioni
