#pragma once

#include "desk/documenti/estratto.h"

#include <QByteArray>

namespace giacenza::documenti {

/// A statement as a workbook of one sheet, with days and numbers that a spreadsheet can reckon with, and sums
/// at the foot. Texts are texts, whatever they begin with. Throws Errore.
QByteArray estrattoXlsx(const Estratto& estratto);

} // namespace giacenza::documenti
