#include "reports/engine/riga.h"

namespace giacenza::report {

Valore RigaReport::valore(const QString& colonna) const
{
    for (const auto& [nome, valore] : mValori) {
        if (nome.compare(colonna, Qt::CaseInsensitive) == 0)
            return valore;
    }
    return std::nullopt;
}

} // namespace giacenza::report
