#pragma once

#include <giacenza/cGiacenza.h>
#include <giacenza/esporta.h>

#include <QString>

namespace giacenza {

/// A held shipment for MostraCaso(), by what its screens look it up with. Dates are "dd/mm/yyyy".
struct CasoDaMostrare
{
    QString numeroGiacenza; ///< its number, without the year
    QString dataGiacenza;   ///< the day from which it is held
    QString numeroLdv;      ///< of the waybill that is held
    QString dataLdv;        ///< the day of that waybill
    QString cliente;        ///< the customer's code
    /// The branch of that waybill; empty: unknown. The two screens of a waybill look it up by number and
    /// date, which another branch may have used too: they tell when the one that they found is of another
    /// branch than this, or of another held shipment than numeroGiacenza, and let nothing be issued for it.
    QString filialeLdv = {};
};

/// The screen on which a held shipment is brought up.
enum class SchermataCaso : int
{
    gestione = 0,   ///< management; by number and held date
    riconsegna = 1, ///< re-delivery to the recipient; by customer, waybill number and date
    reso = 2,       ///< return to the sender; likewise
};

/// Opens a screen as ConsultaGiacenza() and MostraRiconsegna() do, with the kind of movement set before for
/// the two others, and has it look a held shipment up by itself once it is active, as if the operator had
/// typed what the case holds. With one of what the screen looks up by empty, or a wrong date, it opens
/// without a lookup.
///
/// classe: used from its own thread. Throws what the opening throws.
GIACENZA_EXPORT void MostraCaso(cGiacenza& classe, SchermataCaso schermata, const CasoDaMostrare& caso);

} // namespace giacenza
