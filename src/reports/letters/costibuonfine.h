#pragma once

namespace giacenza {

/// Hides the controls of the closure report that show costs, until MostraCostiBuonFine().
void NascondiCostiBuonFine();

/// Shows every control of the closure report: each closure starts with this.
void MostraCostiBuonFine();

} // namespace giacenza
