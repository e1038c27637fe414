#pragma once

namespace banco {

/// The day on which operations by key are measured, and the last one of the databases' data: the number of a
/// waybill is sought in the year of today.
inline constexpr const char* giornoMisure = "2026-11-20";
inline constexpr int annoMisure = 2026;

} // namespace banco
