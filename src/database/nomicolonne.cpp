#include "database/nomicolonne.h"

#include <algorithm>

namespace giacenza {

qsizetype NomiColonne::posto(const QString& nome) const
{
    const auto trovato = std::ranges::find_if(mNomi, [&](const QString& altro) {
        // Equal but for the case means equally long, and lengths differ more often than not.
        return altro.size() == nome.size() && altro.compare(nome, Qt::CaseInsensitive) == 0;
    });
    return trovato == mNomi.end() ? -1 : std::distance(mNomi.begin(), trovato);
}

} // namespace giacenza
