#include "desk/documenti/foglio.h"

#include "comune/pdf.h"
#include "reports/engine/logo.h"
#include "reports/letters/blocchi.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza::documenti {

namespace {

using report::Carattere;
using report::Sezione;
namespace blocchi = report::blocchi;

constexpr double sinistra = blocchi::sinistra;
constexpr double larghezza = blocchi::destra - blocchi::sinistra;
constexpr QColor grigioTesto(0x55, 0x5b, 0x63);
constexpr QColor grigioFilo(0xb4, 0xba, 0xc2);
constexpr Carattere corpo{9.5};
constexpr Carattere forte{9.5, true};
constexpr Carattere cella{8.5};
constexpr Carattere cellaForte{8.5, true};
constexpr Carattere testata{8, true, grigioTesto};
constexpr double traColonne = 1.5;
constexpr double gioco = 0.3; ///< so that a line that was measured is not broken again

void metti(Sezione& sezione, const QString& testo, const QRectF& area, const Carattere& carattere,
           report::Allineamento allineamento = report::Allineamento::sinistra)
{
    sezione.controlli.push_back(
        report::etichetta(u"txt%1"_s.arg(sezione.controlli.size()), area, testo, carattere));
    sezione.controlli.back().allineamento = allineamento;
}

void filo(Sezione& sezione, double y, QColor colore = grigioFilo)
{
    sezione.controlli.push_back(
        report::cornice(u"lin%1"_s.arg(sezione.controlli.size()), {sinistra, y, larghezza, 0}, colore));
}

/// The cells of one line.
void celle(Sezione& sezione, const std::vector<Colonna>& colonne, const QStringList& testi,
           const Carattere& carattere)
{
    double x = sinistra;
    for (std::size_t i = 0; i < colonne.size(); ++i) {
        const QString testo = testi.value(static_cast<qsizetype>(i));
        if (!testo.isEmpty())
            metti(sezione, testo, {x, 0.4, colonne[i].larghezza - traColonne + gioco, sezione.altezza - 0.4},
                  carattere, colonne[i].allineamento);
        x += colonne[i].larghezza;
    }
}

} // namespace

Foglio::Foglio(const Carta& carta, const QString& titolo)
    : mTitolo(titolo), mLogo(report::leggiLogo(carta.logo)), mDefinizione(blocchi::lettera(titolo))
{
    blocchi::completaIntestazione(mDefinizione.intestazione, carta.didascalie, !mLogo.isNull());
    blocchi::completaPie(mDefinizione.pie, carta.piede);
    mTesta = report::componiBanda(
        mDefinizione.intestazione,
        report::testiDi(mDefinizione.intestazione, [](const report::Controllo& c) { return c.testo; }), mLogo,
        mMisuratore);
}

void Foglio::aggiungi(const Sezione& sezione, bool conSeguente)
{
    Elemento elemento;
    elemento.banda = report::componiBanda(
        sezione, report::testiDi(sezione, [](const report::Controllo& c) { return c.testo; }), {},
        mMisuratore);
    elemento.conSeguente = conSeguente;
    mElementi.push_back(std::move(elemento));
}

void Foglio::titolo(const QString& testo, const QString& sotto)
{
    Sezione sezione{u"titolo"_s, sotto.isEmpty() ? 12.0 : 17.4, {}};
    metti(sezione, testo, {sinistra, 2, larghezza, 8.5}, {18, true, blocchi::scuro});
    metti(sezione, sotto, {sinistra, 11, larghezza, 5.5}, {11, false, blocchi::scuro});
    aggiungi(sezione, true);
}

void Foglio::capitolo(const QString& testo)
{
    Sezione sezione{u"capitolo"_s, 10, {}};
    metti(sezione, testo, {sinistra, 3, larghezza, 5}, {10, true, blocchi::scuro});
    filo(sezione, 8.2);
    aggiungi(sezione, true);
}

void Foglio::voci(const std::vector<std::pair<QString, QString>>& coppie)
{
    constexpr double passo = 5;
    constexpr double etichetta = 32;
    std::vector<std::pair<QString, QString>> piene;
    std::copy_if(coppie.begin(), coppie.end(), std::back_inserter(piene),
                 [](const auto& coppia) { return !coppia.second.isEmpty(); });
    for (std::size_t i = 0; i < piene.size(); i += 2) {
        Sezione sezione{u"voci"_s, passo, {}};
        for (std::size_t j = i; j < std::min(i + 2, piene.size()); ++j) {
            const double x = sinistra + (j - i == 0 ? 0 : larghezza / 2 + 2);
            constexpr double valore = larghezza / 2 - 2 - etichetta;
            metti(sezione, piene[j].first, {x, 0.2, etichetta - 1, passo - 0.2}, {8.5, false, grigioTesto});
            double y = 0;
            // A long name goes on below: it is what the paper is about.
            for (const report::RigaTesto& riga :
                 mMisuratore.righe(piene[j].second.simplified(), corpo, valore - gioco)) {
                metti(sezione, riga.testo, {x + etichetta, y, valore, passo}, corpo);
                y += passo;
            }
            sezione.altezza = std::max(sezione.altezza, y);
        }
        aggiungi(sezione, i + 2 < piene.size());
    }
}

void Foglio::paragrafo(const QString& testo)
{
    const double passo = mMisuratore.altezzaRiga(corpo) + 0.4;
    for (const report::RigaTesto& riga : mMisuratore.righe(testo, corpo, larghezza - gioco)) {
        Sezione sezione{u"paragrafo"_s, passo, {}};
        metti(sezione, riga.testo, {sinistra, 0, larghezza, passo}, corpo);
        aggiungi(sezione, false);
    }
    spazio(1.5);
}

void Foglio::avvertenza(const QString& testo)
{
    constexpr double rientro = 3;
    const double passo = mMisuratore.altezzaRiga(forte) + 0.4;
    const auto righe = mMisuratore.righe(testo, forte, larghezza - 2 * rientro);
    Sezione sezione{u"avvertenza"_s, 2 + passo * static_cast<double>(righe.size()) + 2, {}};
    filo(sezione, 0.6, blocchi::scuro);
    double y = 2;
    for (const report::RigaTesto& riga : righe) {
        metti(sezione, riga.testo, {sinistra + rientro, y, larghezza - 2 * rientro + gioco, passo}, forte);
        y += passo;
    }
    filo(sezione, sezione.altezza - 0.8, blocchi::scuro);
    aggiungi(sezione, false);
}

void Foglio::spazio(double mm)
{
    aggiungi({u"spazio"_s, mm, {}}, false);
}

void Foglio::nuovaPagina()
{
    spazio(0);
    mElementi.back().iniziaPagina = true;
}

void Foglio::tabella(const std::vector<Colonna>& colonne)
{
    constexpr double altezza = 5.6;
    mColonne = colonne;
    Sezione sezione{u"testata"_s, altezza, {}};
    QStringList titoli;
    for (const Colonna& colonna : colonne)
        titoli << colonna.titolo;
    celle(sezione, colonne, titoli, testata);
    filo(sezione, altezza - 0.4, blocchi::scuro);
    mIntestazioni.push_back(report::componiBanda(
        sezione, report::testiDi(sezione, [](const report::Controllo& c) { return c.testo; }), {},
        mMisuratore));
}

void Foglio::riga(const QStringList& testi, Riga come)
{
    constexpr std::size_t righeUnite = 12; // a cell with more of them may go over the page
    const Carattere& carattere = come == Riga::forte ? cellaForte : cella;
    std::vector<std::vector<report::RigaTesto>> righe;
    std::size_t alte = 1;
    for (std::size_t i = 0; i < mColonne.size(); ++i) {
        righe.push_back(mMisuratore.righe(testi.value(static_cast<qsizetype>(i)), carattere,
                                          mColonne[i].larghezza - traColonne));
        alte = std::max(alte, righe.back().size());
    }
    const double passo = mMisuratore.altezzaRiga(carattere) + 0.4;
    for (std::size_t n = 0; n < alte; ++n) {
        const bool ultima = n + 1 == alte;
        Sezione sezione{u"riga"_s, passo + (ultima ? 1.0 : 0.0), {}};
        QStringList linea;
        for (const auto& cellaRighe : righe)
            linea << (n < cellaRighe.size() ? cellaRighe[n].testo : QString());
        celle(sezione, mColonne, linea, carattere);
        if (ultima)
            filo(sezione, sezione.altezza - 0.3,
                 come == Riga::forte ? blocchi::scuro : QColor(0xe2, 0xe5, 0xe9));
        aggiungi(sezione, !ultima && n + 1 < righeUnite);
        mElementi.back().tabella = static_cast<int>(mIntestazioni.size()) - 1;
    }
}

QByteArray inPdf(Documento& documento)
{
    const auto byte = comune::pdf(documento, nullptr);
    if (!byte)
        throw Errore(u"La composizione di \"%1\" è stata annullata."_s.arg(documento.titolo()));
    return *byte;
}

} // namespace giacenza::documenti
