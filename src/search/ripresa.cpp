#include "search/ripresa.h"

#include <algorithm>
#include <utility>

namespace giacenza {

Ripresa::Chiave Ripresa::chiaveDi(const Riga& riga) const
{
    const auto valore = [&riga](int posto) {
        return riga[static_cast<std::size_t>(posto)].value_or(QByteArray());
    };
    return {valore(mChiave.numero), valore(mChiave.data)};
}

void Ripresa::mostrata(Riga riga)
{
    mVoci[chiaveDi(riga)].mostrate.push_back(std::move(riga));
}

std::vector<Ripresa::Riga> Ripresa::segue(Riga riga)
{
    const auto trovata = mVoci.find(chiaveDi(riga));
    if (trovata == mVoci.end())
        return {std::move(riga)};
    auto& [mostrate, sospese] = *trovata;
    const auto uguale = std::find(mostrate.begin(), mostrate.end(), riga);
    if (uguale == mostrate.end()) {
        // Either one that was shown, changed since, or another one with the same key: that is known when the
        // one that was shown comes as it was. Of more rows than were shown the rest is new in any case.
        if (sospese.size() >= mostrate.size())
            return {std::move(riga)};
        sospese.push_back(std::move(riga));
        return {};
    }
    mostrate.erase(uguale);
    std::vector<Riga> nuove;
    while (sospese.size() > mostrate.size()) {
        nuove.push_back(std::move(sospese.front()));
        sospese.erase(sospese.begin());
    }
    if (mostrate.empty())
        mVoci.erase(trovata);
    return nuove;
}

} // namespace giacenza
