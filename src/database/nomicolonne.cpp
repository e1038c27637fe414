#include "database/nomicolonne.h"

namespace giacenza {

/// Surrogates are left out: their case shows only in pairs.
std::size_t NomiColonne::Impronta::operator()(const QString& nome) const noexcept
{
    constexpr std::size_t base = 31;
    std::size_t impronta = 0;
    for (const QChar carattere : nome)
        if (!carattere.isSurrogate())
            impronta = impronta * base + carattere.toCaseFolded().unicode();
    return impronta;
}

bool NomiColonne::Uguale::operator()(const QString& uno, const QString& altro) const noexcept
{
    return uno.compare(altro, Qt::CaseInsensitive) == 0;
}

qsizetype NomiColonne::posto(const QString& nome) const
{
    if (mPosti.empty())
        for (int colonna = 0; colonna < quanti(); ++colonna)
            mPosti.try_emplace((*this)[colonna], colonna); // the first of equal names stays
    const auto trovato = mPosti.find(nome);
    return trovato == mPosti.end() ? -1 : trovato->second;
}

} // namespace giacenza
