#pragma once

#include "schema/dati/riempimento.h"
#include "support/bancadati.h"

namespace giacenza::prove {

/// The last day of the databases of basePiena().
inline QDate oggiDimostrativo()
{
    return {2026, 3, 4};
}
inline constexpr int spedizioniDimostrative = 3000;

/// A database of demonstration data, made once and shared by the tests of this program: they only read it.
///
/// tipo: as for BancaDati, or "sqliteNuovo": one whose statistics nobody gathered yet. spedizioni: waybills.
const BancaDati& basePiena(const std::string& tipo, int spedizioni = spedizioniDimostrative);

} // namespace giacenza::prove
