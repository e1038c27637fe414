#pragma once

#include "desk/documenti/estratto.h"

#include <variant>

namespace giacenza::documenti {

/// A value of a spreadsheet: nothing, a text, a day, a number as an exact decimal with its places.
struct Numero
{
    QString valore; ///< with a point
    int decimali = 0;
    bool euro = false;
};
using Cella = std::variant<std::monostate, QString, QDate, Numero>;

/// The headings of a statement's spreadsheet, and a case's cells beneath them.
QStringList titoliEstratto();
std::vector<Cella> celleEstratto(const Estratto& estratto, const CasoEstratto& caso);

} // namespace giacenza::documenti
