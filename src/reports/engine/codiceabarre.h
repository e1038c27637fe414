#pragma once

#include "reports/engine/definizione.h"

#include <optional>

namespace giacenza::report {

struct CodiceABarre
{
    QRectF area; ///< from the first bar to the last
    std::vector<QRectF> barre;
};

/// A text as Code 128 in an area in mm, as wide as it reads well: modules of at most 0.5 mm, aligned in the
/// area. The quiet zones, ten modules at each end, are not part of it: the definition leaves them white.
///
/// Nothing for the empty text, for one that the code cannot hold, and for one so long that its modules would
/// be narrower than 0.2 mm, which scanners of a depot do not read.
std::optional<CodiceABarre> code128(const QString& testo, const QRectF& area,
                                    Allineamento allineamento = Allineamento::sinistra);

} // namespace giacenza::report
