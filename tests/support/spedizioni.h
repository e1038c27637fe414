#pragma once

#include "support/bancadati.h"

namespace giacenza::prove {

/// A depot small enough to be known by heart: branches MI and BO, customer 1001 "Ferramenta Lombarda S.r.l.",
/// carrier V01, line L05, three freight terms, the counter at 41, and these waybills of branch MI and of
/// 12/11/2026:
///
///     4711  whole, reference "ORD-881" of 10/11/2026, delivered on the 14th
///     4712  every nullable column null but the customer's reference "ORD-882"
///     4713  itself a re-delivery (LERICO "R"), reference "ORD-883"
///     4714  held already: number 40 of 2026, noticed twice, closed, with charges and an earlier held
///     shipment 4715  carrier, line and branch unknown to their tables (branch XX), reference "ORD-885"
void riempiDeposito(const BancaDati& base);

} // namespace giacenza::prove
