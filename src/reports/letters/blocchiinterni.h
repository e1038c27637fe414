#pragma once

#include "reports/letters/blocchi.h"

/// What the files of the blocks share, and nobody else needs.
namespace giacenza::report::blocchi {

inline constexpr double larghezza = destra - sinistra;

inline constexpr QColor grigioTesto(0x55, 0x5b, 0x63);
inline constexpr QColor grigioFilo(0xb4, 0xba, 0xc2);

inline constexpr Carattere piccolo{8, false, grigioTesto};

inline Controllo& metti(Sezione& sezione, Controllo controllo)
{
    return sezione.controlli.emplace_back(std::move(controllo));
}

} // namespace giacenza::report::blocchi
