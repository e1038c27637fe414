#include "benchmarks/quadro/misura.h"

#include "benchmarks/quadro/corridore.h"

#include <giacenza/Errore.h>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace banco {

namespace {

/// A program with the figures of its runs.
class Concorrente
{
public:
    explicit Concorrente(const Programma& programma) : mCorridore(creaCorridore(programma)) {}

    QStringList istruzioni() { return mCorridore->istruzioni(); }
    void scalda() { mCorridore->corri(); }
    void corri()
    {
        const Corsa corsa = mCorridore->corri();
        mTempi.push_back(corsa.millisecondi);
        mPicco = std::max(mPicco, corsa.megabyte);
    }

    const std::vector<double>& tempi() const { return mTempi; }
    double picco() const { return mPicco; }

private:
    std::unique_ptr<Corridore> mCorridore;
    std::vector<double> mTempi;
    double mPicco = 0;
};

/// Who goes first finds what the other has left, in the caches and in the clock of the processor.
void corriInsieme(Concorrente& nostro, Concorrente& riferimento, int quante)
{
    for (int corsa = 0; corsa < quante; ++corsa) {
        Concorrente& primo = corsa % 2 == 0 ? riferimento : nostro;
        Concorrente& secondo = corsa % 2 == 0 ? nostro : riferimento;
        primo.corri();
        secondo.corri();
    }
}

void pretendiStesseIstruzioni(const QString& nome, const QStringList& nostre, const QStringList& altrui)
{
    if (!nostre.isEmpty() && nostre == altrui)
        return;
    throw giacenza::Errore(u"%1: the statements differ. Ours:\n  %2\nThe reference's:\n  %3"_s.arg(
        nome, nostre.join(u"\n  "_s), altrui.join(u"\n  "_s)));
}

double dispersioneRapporti(const std::vector<double>& nostri, const std::vector<double>& riferimenti)
{
    std::vector<double> rapporti;
    for (std::size_t i = 0; i < nostri.size(); ++i)
        rapporti.push_back(nostri[i] / riferimenti[i]);
    return (quantile(rapporti, 0.75) - quantile(rapporti, 0.25)) / mediana(rapporti);
}

} // namespace

double quantile(std::vector<double> valori, double parte)
{
    std::sort(valori.begin(), valori.end());
    const double posto = parte * static_cast<double>(valori.size() - 1);
    const auto sotto = static_cast<std::size_t>(posto);
    const std::size_t sopra = std::min(sotto + 1, valori.size() - 1);
    return std::lerp(valori[sotto], valori[sopra], posto - static_cast<double>(sotto));
}

double mediana(std::vector<double> valori)
{
    return quantile(std::move(valori), 0.5);
}

bool Misura::raggiunto() const
{
    const Obiettivo& o = confronto.obiettivo;
    return (o.rapporto <= 0 || rapporto <= o.rapporto) &&
           (o.inPiu <= 0 || nostroMs - riferimentoMs <= o.inPiu) && (o.picco <= 0 || piccoMb <= o.picco) &&
           (o.piccoInPiu <= 0 || piccoMb - piccoRiferimentoMb <= o.piccoInPiu);
}

Misura misura(const Confronto& confronto, const Corse& corse)
{
    constexpr double breve = 20; // milliseconds
    Concorrente nostro(confronto.nostro);
    Concorrente riferimento(confronto.riferimento);
    if (confronto.stesseIstruzioni) {
        const QStringList nostre = nostro.istruzioni();
        pretendiStesseIstruzioni(confronto.nome, nostre, riferimento.istruzioni());
    }
    riferimento.scalda();
    nostro.scalda();
    corriInsieme(nostro, riferimento, corse.lunghe);
    // An even number, so that both went first equally often.
    if (mediana(nostro.tempi()) < breve && corse.brevi > corse.lunghe)
        corriInsieme(riferimento, nostro, corse.brevi - corse.lunghe);
    const double nostroMs = mediana(nostro.tempi());
    const double riferimentoMs = mediana(riferimento.tempi());
    return {confronto,
            static_cast<int>(nostro.tempi().size()),
            nostroMs,
            riferimentoMs,
            nostroMs / riferimentoMs,
            dispersioneRapporti(nostro.tempi(), riferimento.tempi()),
            nostro.picco(),
            riferimento.picco()};
}

} // namespace banco
