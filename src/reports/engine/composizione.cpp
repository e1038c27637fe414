#include "reports/engine/composizione.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza::report {

namespace {

/// What of a primitive lies between two heights of its band; frames are cut there, the rest is whole or
/// absent.
std::optional<Primitiva> entro(const Primitiva& primitiva, double da, double a)
{
    constexpr double tolleranza = 0.001;
    const QRectF area = areaDi(primitiva);
    const double meta = area.center().y();
    if (!std::holds_alternative<CornicePagina>(primitiva) || area.height() <= 0) {
        const bool dentro = meta >= da - tolleranza && meta < a + tolleranza;
        return dentro ? std::optional(primitiva) : std::nullopt;
    }
    const double alto = std::max(area.top(), da);
    const double basso = std::min(area.bottom(), a);
    if (basso - alto <= tolleranza)
        return std::nullopt;
    CornicePagina cornice = std::get<CornicePagina>(primitiva);
    cornice.area.setTop(alto);
    cornice.area.setBottom(basso);
    return cornice;
}

} // namespace

Composizione::Composizione(Definizione definizione, const QString& titolo, const QImage& logo, QDate oggi)
    : mDefinizione(std::move(definizione)), mTitolo(titolo), mLogo(logo), mOggi(oggi)
{
    constexpr double riduzioneIntestazione = 0.75;
    const auto testi = testiDi(mDefinizione.intestazione, [](const Controllo& c) { return c.testo; });
    if (mDefinizione.inizioDettaglio > 0) {
        mIntestazione =
            componiEntro(mDefinizione.intestazione, testi, mLogo, mMisuratore,
                         {mDefinizione.inizioDettaglio - mDefinizione.margineAlto, riduzioneIntestazione});
    } else {
        mIntestazione = componiBanda(mDefinizione.intestazione, testi, mLogo, mMisuratore);
    }
}

Banda Composizione::pie(std::size_t pagina, std::size_t pagine)
{
    const TestiSezione testi = testiDi(mDefinizione.pie, [&](const Controllo& controllo) {
        return QString(controllo.testo)
            .replace(u"{n}"_s, QString::number(pagina))
            .replace(u"{m}"_s, QString::number(pagine))
            .replace(u"{t}"_s, mTitolo);
    });
    constexpr double riduzionePie = 0.8;
    return componiEntro(mDefinizione.pie, testi, mLogo, mMisuratore,
                        {mDefinizione.pie.altezza, riduzionePie});
}

double Composizione::inizioCorpo() const
{
    return std::max(mDefinizione.margineAlto + mIntestazione.altezza, mDefinizione.inizioDettaglio);
}

double Composizione::inizioPie() const
{
    return mDefinizione.cartaMm().height() - mDefinizione.margineBasso - mDefinizione.pie.altezza;
}

void Composizione::aggiungi(const RigaReport& riga, Connessione& connessione)
{
    const auto testo = [&](const Controllo& controllo) {
        if (controllo.genere == Genere::etichetta)
            return controllo.testo;
        const Contesto contesto{riga.valore(controllo.colonna), riga, connessione, mOggi};
        return controllo.formato ? controllo.formato(contesto) : contesto.valore.value_or(QString());
    };
    const TestiSezione testi = testiDi(mDefinizione.dettaglio, testo);
    const auto banda = [&](double riduzione) {
        return componiBanda(mDefinizione.dettaglio, testi, mLogo, mMisuratore, riduzione);
    };
    const double spazio = inizioPie() - inizioCorpo();
    Banda naturale = banda(1);
    for (const double riduzione : {0.9, 0.8}) {
        if (naturale.altezza <= spazio)
            break;
        if (Banda ridotta = banda(riduzione); ridotta.altezza <= spazio)
            naturale = std::move(ridotta);
    }
    mBande.push_back(std::move(naturale));
    constexpr double riduzioneFinestra = 0.5;
    mFinestre.push_back(
        componiEntro(mDefinizione.finestra, testiDi(mDefinizione.finestra, testo), mLogo, mMisuratore,
                     {mDefinizione.fineFinestra - mDefinizione.inizioFinestra, riduzioneFinestra}));
}

void Composizione::aggiungiPezzo(PaginaReport& pagina, const Pezzo& pezzo) const
{
    if (pezzo.da <= 0) {
        for (const Primitiva& primitiva : mFinestre[pezzo.blocco].primitive)
            pagina.push_back(spostata(primitiva, mDefinizione.inizioFinestra));
    }
    for (const Primitiva& primitiva : mBande[pezzo.blocco].primitive) {
        if (const auto parte = entro(primitiva, pezzo.da, pezzo.a))
            pagina.push_back(spostata(*parte, inizioCorpo() + pezzo.y - pezzo.da));
    }
}

std::vector<PaginaReport> Composizione::pagine()
{
    std::vector<Blocco> blocchi;
    for (const Banda& banda : mBande) {
        blocchi.push_back(banda.blocco());
        blocchi.back().iniziaPagina = true;
    }
    const auto divise = impagina(blocchi, inizioPie() - inizioCorpo());

    std::vector<PaginaReport> pagine;
    for (std::size_t n = 0; n < divise.size(); ++n) {
        PaginaReport& pagina = pagine.emplace_back();
        for (const Primitiva& primitiva : mIntestazione.primitive)
            pagina.push_back(spostata(primitiva, mDefinizione.margineAlto));
        for (const Pezzo& pezzo : divise[n])
            aggiungiPezzo(pagina, pezzo);
        for (const Primitiva& primitiva : pie(n + 1, divise.size()).primitive)
            pagina.push_back(spostata(primitiva, inizioPie()));
    }
    return pagine;
}

} // namespace giacenza::report
