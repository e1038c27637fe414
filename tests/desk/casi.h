#pragma once

#include "support/bancadati.h"

#include <QDate>

namespace giacenza::prove {

/// The day on which the cases of riempiCasi() are looked at.
inline QDate oggiCasi()
{
    return {2026, 11, 20};
}

/// The small depot (support/spedizioni.h) with open cases, one for each state, all of 2026; customer 1001 has
/// terms (fixed 2.50, 5 days free, 1.50 a day, at least 4), customer 1002 has none:
///
///     41  LDV 4721, held 2 days, nobody told: to be told
///     42  LDV 4722, held 10 days, told twice, followed by 4730 (re-delivery, on its way) and 4731 (return):
///     charged 43  LDV 4723, held 4 days, told once: runs out 44  LDV 4724 of customer 1002, held 19 days,
///     told 18 days ago: stands still 45  LDV 4725 of customer 1002, held in BO for 5 days, two apostrophes
///     in its reason: waits
void riempiCasi(const BancaDati& base);

} // namespace giacenza::prove
