#pragma once

#include "schema/dati/anagrafe.h"

#include <QDate>

#include <functional>
#include <optional>

namespace giacenza::dimostrazione {

/// A waybill in time: when it was issued, under which number of its year, and what it has to do with held
/// shipments. Positions are those of Cronologia::giacenze, -1 for none.
struct Posto
{
    QDate data;
    int numero = 0;
    int giacenza = -1;     ///< the held shipment it became
    int riconsegnaDi = -1; ///< the held shipment it delivers again or returns
    bool reso = false;
};

/// A held shipment in time; invalid dates are those that have not come.
struct Sosta
{
    int spedizione = 0; ///< position of the waybill held
    QDate data;
    int numero = 0; ///< one series over all years
    int avvisi = 0;
    QDate ultimoAvviso;
    QDate riconsegna; ///< the last one
    QDate buonFine;
};

struct Cronologia
{
    QDate oggi;
    std::vector<Posto> spedizioni;
    std::vector<Sosta> giacenze;
};

/// The free days of who sends a waybill, by its position; nothing for a customer without terms.
using Franchi = std::function<std::optional<int>(int spedizione)>;

/// What happened in the depot from the first of January three years before up to today: so many waybills, the
/// more the nearer to today, some held, and of these some noticed, delivered again, returned and closed.
/// franchi: with it, a few of the latest waybills are held besides, so that whatever day today is there are
/// open cases whose free days run out, that stand still and that can wait; without it there are none of
/// these.
Cronologia cronologia(int spedizioni, QDate oggi, const Franchi& franchi = {});

} // namespace giacenza::dimostrazione
