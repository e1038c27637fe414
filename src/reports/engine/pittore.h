#pragma once

#include "reports/engine/primitive.h"

class QPainter;

namespace giacenza::report {

/// Paints a page on any device: its resolution gives the scale, the painter's origin is the paper's upper
/// left corner. The painter's state is put back.
void dipingiPagina(const PaginaReport& pagina, QPainter& pittore);

} // namespace giacenza::report
