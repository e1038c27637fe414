#include "reports/engine/impaginatore.h"

#include <algorithm>

namespace giacenza::report {

namespace {

/// Lengths are sums of rounded numbers: less than this does not count.
constexpr double tolleranza = 0.001;

/// The lowest place at or above limite where the block may be cut, or da when there is none.
double taglio(const Blocco& blocco, double da, double limite)
{
    double dove = limite;
    for (bool mosso = true; mosso;) {
        mosso = false;
        for (const Unito& unito : blocco.uniti) {
            if (unito.da < dove - tolleranza && unito.a > dove + tolleranza) {
                dove = unito.da;
                mosso = true;
            }
        }
    }
    return std::max(dove, da);
}

class Impaginazione
{
public:
    explicit Impaginazione(double altezzaPagina) : mAltezza(std::max(altezzaPagina, 1.0)) {}

    void aggiungi(std::size_t indice, const Blocco& blocco)
    {
        const bool staIntero = blocco.altezza <= mAltezza + tolleranza;
        if (blocco.iniziaPagina || (staIntero && !ciSta(blocco.altezza)))
            nuovaPagina();
        double da = 0;
        while (!ciSta(blocco.altezza - da)) {
            double fino = taglio(blocco, da, da + mAltezza - mY);
            if (fino <= da + tolleranza && mY > 0) {
                nuovaPagina();
                continue;
            }
            if (fino <= da + tolleranza)
                fino = da + mAltezza;
            metti(indice, da, fino);
            da = fino;
            nuovaPagina();
        }
        metti(indice, da, blocco.altezza);
    }

    std::vector<std::vector<Pezzo>> fine() { return std::move(mPagine); }

private:
    bool ciSta(double altezza) const { return altezza <= mAltezza - mY + tolleranza; }

    void nuovaPagina()
    {
        if (mPagine.back().empty())
            return;
        mPagine.emplace_back();
        mY = 0;
    }

    void metti(std::size_t indice, double da, double a)
    {
        mPagine.back().push_back({indice, da, a, mY});
        mY += a - da;
    }

    std::vector<std::vector<Pezzo>> mPagine = std::vector<std::vector<Pezzo>>(1);
    double mAltezza;
    double mY = 0;
};

} // namespace

std::vector<std::vector<Pezzo>> impagina(std::span<const Blocco> blocchi, double altezzaPagina)
{
    Impaginazione impaginazione(altezzaPagina);
    for (std::size_t i = 0; i < blocchi.size(); ++i)
        impaginazione.aggiungi(i, blocchi[i]);
    return impaginazione.fine();
}

} // namespace giacenza::report
