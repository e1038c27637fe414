// How the elements of a sheet come to stand on pages.
#include "desk/documenti/foglio.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza::documenti {

using report::Banda;
using report::PaginaReport;

double Foglio::inizioCorpo() const
{
    return mDefinizione.margineAlto + mTesta.altezza;
}

double Foglio::altezzaCorpo() const
{
    return mDefinizione.cartaMm().height() - mDefinizione.margineBasso - mDefinizione.pie.altezza -
           inizioCorpo();
}

/// The heading that goes above an element: of its table, where the table begins or the page does.
const Banda* Foglio::intestazioneDi(std::size_t elemento, std::size_t primoDellaPagina) const
{
    const int tabella = mElementi[elemento].tabella;
    if (tabella < 0 || (elemento > primoDellaPagina && mElementi[elemento - 1].tabella == tabella))
        return nullptr;
    return &mIntestazioni[static_cast<std::size_t>(tabella)];
}

std::vector<std::vector<std::size_t>> Foglio::dividi() const
{
    std::vector<std::vector<std::size_t>> pagine(1);
    double y = 0;
    for (std::size_t da = 0; da < mElementi.size();) {
        // What stays together: up to the first one that a page may end below.
        std::size_t a = da;
        while (mElementi[a].conSeguente && a + 1 < mElementi.size())
            ++a;
        const auto altezza = [&](std::size_t primoDellaPagina) {
            double somma = 0;
            for (std::size_t i = da; i <= a; ++i) {
                const Banda* sopra = intestazioneDi(i, primoDellaPagina);
                somma += mElementi[i].banda.altezza + (sopra ? sopra->altezza : 0);
            }
            return somma;
        };
        const std::size_t primo = pagine.back().empty() ? da : pagine.back().front();
        const bool piena = y + altezza(primo) > altezzaCorpo();
        if (!pagine.back().empty() && (piena || mElementi[da].iniziaPagina)) {
            pagine.emplace_back();
            y = 0;
        }
        y += altezza(pagine.back().empty() ? da : pagine.back().front());
        for (; da <= a; ++da)
            pagine.back().push_back(da);
    }
    return pagine;
}

Banda Foglio::pie(std::size_t pagina, std::size_t pagine)
{
    constexpr double riduzionePie = 0.8;
    const auto testi = report::testiDi(mDefinizione.pie, [&](const report::Controllo& controllo) {
        return QString(controllo.testo)
            .replace(u"{n}"_s, QString::number(pagina))
            .replace(u"{m}"_s, QString::number(pagine))
            .replace(u"{t}"_s, mTitolo);
    });
    return report::componiEntro(mDefinizione.pie, testi, mLogo, mMisuratore,
                                {mDefinizione.pie.altezza, riduzionePie});
}

std::vector<PaginaReport> Foglio::pagine()
{
    const auto divise = dividi();
    const double inizioPie =
        mDefinizione.cartaMm().height() - mDefinizione.margineBasso - mDefinizione.pie.altezza;
    std::vector<PaginaReport> pagine;
    const auto metti = [&](const Banda& banda, double y) {
        for (const report::Primitiva& primitiva : banda.primitive)
            pagine.back().push_back(report::spostata(primitiva, y));
    };
    for (std::size_t n = 0; n < divise.size(); ++n) {
        pagine.emplace_back();
        metti(mTesta, mDefinizione.margineAlto);
        double y = inizioCorpo();
        for (const std::size_t i : divise[n]) {
            if (const Banda* sopra = intestazioneDi(i, divise[n].front())) {
                metti(*sopra, y);
                y += sopra->altezza;
            }
            metti(mElementi[i].banda, y);
            y += mElementi[i].banda.altezza;
        }
        metti(pie(n + 1, divise.size()), inizioPie);
    }
    return pagine;
}

std::unique_ptr<report::DocumentoReport> Foglio::documento()
{
    return std::make_unique<report::DocumentoReport>(mTitolo, mDefinizione.carta, pagine(),
                                                     report::Ascoltatore{[] { return true; }});
}

} // namespace giacenza::documenti
