#include "reports/engine/disposizione.h"

#include <algorithm>
#include <limits>
#include <numeric>
#include <utility>

namespace giacenza::report {

namespace {

constexpr double nessuno = -std::numeric_limits<double>::infinity();

/// Places the controls from the top down: who is placed only depends on those whose lower edge is higher.
class Disposizione
{
public:
    Disposizione(std::span<const Controllo> controlli, std::span<const double> altezze)
        : mControlli(controlli), mAltezze(altezze), mAree(controlli.size())
    {}

    std::vector<QRectF> calcola()
    {
        std::vector<std::size_t> ordine(mControlli.size());
        std::iota(ordine.begin(), ordine.end(), std::size_t{0});
        std::ranges::sort(ordine, {}, [&](std::size_t i) {
            return std::pair(mControlli[i].area.bottom(), mControlli[i].area.top());
        });
        for (const std::size_t i : ordine) {
            const QRectF& prima = mControlli[i].area;
            const double giu = spostamento(i);
            const double altezza =
                mControlli[i].genere == Genere::cornice ? altezzaCornice(i, giu) : mAltezze[i];
            mAree[i] = QRectF(prima.x(), prima.y() + giu, prima.width(), altezza);
        }
        return std::move(mAree);
    }

private:
    /// How far a placed control's lower edge has moved.
    double mosso(std::size_t i) const { return mAree[i].bottom() - mControlli[i].area.bottom(); }

    /// A rule has no height: it is above what starts where it lies, but not above another rule there.
    bool sopra(std::size_t alto, std::size_t basso) const
    {
        const QRectF& area = mControlli[alto].area;
        const QRectF& altra = mControlli[basso].area;
        const int uno = mControlli[alto].gruppo;
        const int altro = mControlli[basso].gruppo;
        const bool insieme = uno == 0 || altro == 0 || uno == altro;
        return insieme && area.bottom() <= altra.top() + 1e-6 && area.top() < altra.bottom() - 1e-6;
    }

    /// The direct neighbours above are those with nothing wholly between them and the control.
    double spostamento(std::size_t i) const
    {
        std::vector<std::size_t> tutti;
        for (std::size_t j = 0; j < mControlli.size(); ++j) {
            if (sopra(j, i))
                tutti.push_back(j);
        }
        double giu = nessuno;
        for (const std::size_t j : tutti) {
            if (mosso(j) > giu && std::ranges::none_of(tutti, [&](std::size_t k) { return sopra(j, k); }))
                giu = mosso(j);
        }
        return giu == nessuno ? 0 : giu;
    }

    double altezzaCornice(std::size_t i, double giu) const
    {
        const QRectF& area = mControlli[i].area;
        double fondo = nessuno;
        double prima = nessuno;
        for (std::size_t j = 0; j < mControlli.size(); ++j) {
            const QRectF& altra = mControlli[j].area;
            if (j != i && altra.bottom() < area.bottom() && area.contains(altra)) {
                fondo = std::max(fondo, mAree[j].bottom());
                prima = std::max(prima, altra.bottom());
            }
        }
        return area.height() + (fondo == nessuno ? 0 : fondo - prima - giu);
    }

    std::span<const Controllo> mControlli;
    std::span<const double> mAltezze;
    std::vector<QRectF> mAree;
};

} // namespace

std::vector<QRectF> disponi(std::span<const Controllo> controlli, std::span<const double> altezze)
{
    return Disposizione(controlli, altezze).calcola();
}

} // namespace giacenza::report
