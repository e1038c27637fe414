#pragma once

#include "desk/documenti/estratto.h"

#include <QByteArray>

namespace giacenza::documenti {

/// A statement as text, as Italian spreadsheets read it: UTF-8 with its mark, semicolons, decimal commas,
/// days "dd/mm/yyyy", lines that end with CR LF.
QByteArray estrattoCsv(const Estratto& estratto);

/// A text as a cell that no spreadsheet takes for a formula: where it begins like one (=, +, -, @, their wide
/// forms, a tab or a line end) an apostrophe comes before it. In quotes where it must be.
QString cellaCsv(const QString& testo);

} // namespace giacenza::documenti
