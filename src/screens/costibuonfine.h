#pragma once

namespace giacenza {

/// Which costs the closure statement is to leave out: the management screen hides them all, the registration
/// screen leaves the amount of the re-delivery where it is.
enum class CostiNascosti
{
    tutti,
    tranneRiconsegna
};

/// Hides the controls of the closure report that show costs, until MostraCostiBuonFine().
void NascondiCostiBuonFine(CostiNascosti quali);

/// Shows every control of the closure report: each closure starts with this.
void MostraCostiBuonFine();

} // namespace giacenza
