#include "database/nomicolonne.h"

#include <algorithm>

namespace giacenza {

namespace {

/// A number that names of one spelling but for case have in common. Surrogates are left out: their case shows
/// only in pairs.
std::size_t impronta(const QString& nome)
{
    constexpr std::size_t base = 31;
    constexpr char16_t fineAscii = 0x80;
    std::size_t somma = 0;
    for (const QChar carattere : nome) {
        const char16_t codice = carattere.unicode();
        if (codice < fineAscii)
            somma = somma * base + (codice >= u'A' && codice <= u'Z' ? codice + (u'a' - u'A') : codice);
        else if (!carattere.isSurrogate())
            somma = somma * base + carattere.toCaseFolded().unicode();
    }
    return somma;
}

} // namespace

qsizetype NomiColonne::posto(const QString& nome) const
{
    if (mPosti.empty()) {
        mPosti.reserve(mNomi.size());
        for (int colonna = 0; colonna < quanti(); ++colonna)
            mPosti.emplace_back(impronta((*this)[colonna]), colonna);
        std::sort(mPosti.begin(), mPosti.end());
    }
    const std::pair<std::size_t, qsizetype> primo(impronta(nome), 0);
    // Of equal names the first stands first.
    for (auto questo = std::lower_bound(mPosti.begin(), mPosti.end(), primo);
         questo != mPosti.end() && questo->first == primo.first; ++questo)
        if ((*this)[questo->second].compare(nome, Qt::CaseInsensitive) == 0)
            return questo->second;
    return -1;
}

} // namespace giacenza
