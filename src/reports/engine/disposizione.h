#pragma once

#include "reports/engine/definizione.h"

#include <span>

namespace giacenza::report {

/// Where the controls of a section stand once the heights of their contents are known.
///
/// altezze: the height that each control takes, in the controls' order; those of frames are not looked at.
/// A control moves by what the lowest of its direct neighbours above has moved; a frame grows with what it
/// holds. The result has the controls' order and their x and width.
std::vector<QRectF> disponi(std::span<const Controllo> controlli, std::span<const double> altezze);

} // namespace giacenza::report
