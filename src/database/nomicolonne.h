#pragma once

#include <QString>

#include <utility>
#include <vector>

namespace giacenza {

/// The names of a result's columns, and where each stands. Names are one without case; of two that are one,
/// the first wins.
class NomiColonne
{
public:
    NomiColonne() = default;
    explicit NomiColonne(std::vector<QString> nomi) : mNomi(std::move(nomi)) {}

    bool vuoti() const noexcept { return mNomi.empty(); }
    int quanti() const noexcept { return static_cast<int>(mNomi.size()); }
    /// colonna: 0 to quanti() - 1.
    const QString& operator[](qsizetype colonna) const { return mNomi[static_cast<std::size_t>(colonna)]; }

    /// -1 for a name that is not there.
    qsizetype posto(const QString& nome) const;

private:
    std::vector<QString> mNomi;
    /// By a number that does not know case; empty before the first question.
    mutable std::vector<std::pair<std::size_t, qsizetype>> mPosti;
};

} // namespace giacenza
