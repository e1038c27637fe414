#include "schema/dati/cronologia.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <queue>

namespace giacenza::dimostrazione {

namespace {

/// How a held shipment ends, where its time has come.
enum class Esito
{
    ritiro,
    riconsegna,
    reso,
    attesa,
    senzaAvviso
};

Esito nuovoEsito(Caso& caso, qint64 eta)
{
    const int n = caso.tra(1, 100);
    const bool antica = eta > 180;
    if (n <= 25)
        return Esito::riconsegna;
    if (n <= 40)
        return Esito::reso;
    if (n <= 62)
        return antica ? Esito::ritiro : Esito::attesa;
    if (n <= 72)
        return eta > 90 ? Esito::ritiro : Esito::senzaAvviso;
    return Esito::ritiro;
}

/// A new waybill that waits for its day.
struct Attesa
{
    QDate giorno;
    int giacenza;
    bool reso;

    /// The nearest day comes first, and of one day the older case.
    bool operator<(const Attesa& altra) const
    {
        return giorno != altra.giorno ? giorno > altra.giorno : giacenza > altra.giacenza;
    }
};

/// Open cases that a desk has to show on any day, though chance may not have brought them.
enum class Recente
{
    ferma,
    inScadenza,
    inAttesa,
    quanti
};

/// How many days a waybill of so many free ones has to lie there today; nothing when it cannot be such a
/// case. quale: how many there are already, so that they differ.
std::optional<int> giorniPer(Recente genere, std::optional<int> franchi, int quale)
{
    // Two days are left when a case runs out, and a week without news makes it stand still.
    constexpr int scadenza = 2;
    constexpr int settimana = 7;
    if (genere == Recente::ferma)
        return !franchi || *franchi - settimana > scadenza ? std::optional(settimana) : std::nullopt;
    if (!franchi)
        return std::nullopt;
    if (genere == Recente::inScadenza)
        return *franchi - quale % (scadenza + 1);
    return *franchi - 1 > scadenza ? std::optional(1) : std::nullopt;
}

class Storia
{
public:
    Storia(int spedizioni, QDate oggi) : mQuante(spedizioni)
    {
        mCronologia.oggi = oggi;
        for (QDate giorno(oggi.year() - 3, 1, 1); giorno <= oggi; giorno = giorno.addDays(1)) {
            if (giorno.dayOfWeek() <= Qt::Friday)
                mLavorativi.push_back(giorno);
        }
    }

    Cronologia svolgi(const Franchi& franchi)
    {
        mCronologia.spedizioni.reserve(static_cast<std::size_t>(mQuante));
        int numero = 0;
        for (int i = 0; i < mQuante; ++i) {
            Posto posto;
            posto.data = giornoDi(i);
            const bool annoNuovo = i > 0 && mCronologia.spedizioni.back().data.year() != posto.data.year();
            posto.numero = numero = annoNuovo ? 1 : numero + 1;
            if (!mAttese.empty() && mAttese.top().giorno <= posto.data)
                riconsegna(posto, i);
            else
                giacenza(posto, i);
            mCronologia.spedizioni.push_back(posto);
        }
        if (franchi)
            recenti(franchi);
        numera();
        avvisa();
        return std::move(mCronologia);
    }

private:
    /// The days go slower as the number grows: towards today there are twice the waybills of the average.
    QDate giornoDi(int i) const
    {
        const auto n = static_cast<qint64>(mQuante);
        const auto giorni = static_cast<qint64>(mLavorativi.size());
        const qint64 quale = giorni * (3 * i * n - static_cast<qint64>(i) * i) / (2 * n * n);
        return mLavorativi[static_cast<std::size_t>(quale)];
    }

    void giacenza(Posto& posto, int i)
    {
        Caso caso(Caso::evento, i);
        if (!caso.percento(12))
            return;
        Sosta sosta;
        sosta.spedizione = i;
        sosta.data = posto.data.addDays(caso.tra(1, 9));
        const QDate oggi = mCronologia.oggi;
        if (sosta.data > oggi)
            return;
        posto.giacenza = static_cast<int>(mCronologia.giacenze.size());
        const Esito esito = nuovoEsito(caso, sosta.data.daysTo(oggi));
        const QDate fine = sosta.data.addDays(caso.tra(1, 24));
        sosta.avvisi = esito == Esito::senzaAvviso ? 0 : caso.tra(1, 5);
        if (esito == Esito::ritiro && fine <= oggi)
            sosta.buonFine = fine;
        else if (esito == Esito::riconsegna || esito == Esito::reso)
            mAttese.push({fine, posto.giacenza, esito == Esito::reso});
        mCronologia.giacenze.push_back(sosta);
    }

    void riconsegna(Posto& posto, int i)
    {
        const Attesa attesa = mAttese.top();
        mAttese.pop();
        posto.riconsegnaDi = attesa.giacenza;
        posto.reso = attesa.reso;
        Sosta& sosta = mCronologia.giacenze[static_cast<std::size_t>(attesa.giacenza)];
        sosta.riconsegna = posto.data;
        Caso caso(Caso::evento, i);
        const QDate dopo = posto.data.addDays(caso.tra(1, 6));
        if (!attesa.reso && caso.percento(15))
            mAttese.push({dopo, attesa.giacenza, caso.percento(40)});
        else if (dopo <= mCronologia.oggi && caso.percento(85))
            sosta.buonFine = dopo;
    }

    /// Some of the latest waybills that nothing happened to, the newest first.
    void recenti(const Franchi& franchi)
    {
        constexpr int perGenere = 3;
        constexpr int quantoIndietro = 30;
        std::array<int, static_cast<std::size_t>(Recente::quanti)> fatte{};
        const QDate oggi = mCronologia.oggi;
        for (int i = mQuante - 1; i >= 0; --i) {
            Posto& posto = mCronologia.spedizioni[static_cast<std::size_t>(i)];
            if (posto.data < oggi.addDays(-quantoIndietro))
                return;
            if (posto.giacenza >= 0 || posto.riconsegnaDi >= 0)
                continue;
            for (std::size_t g = 0; g < fatte.size() && posto.giacenza < 0; ++g) {
                const auto giorni = giorniPer(static_cast<Recente>(g), franchi(i), fatte[g]);
                if (fatte[g] == perGenere || !giorni || oggi.addDays(-*giorni) <= posto.data)
                    continue;
                ++fatte[g];
                trattieni(posto, i, oggi.addDays(-*giorni));
            }
        }
    }

    /// Held since a day, told of on that day.
    void trattieni(Posto& posto, int i, QDate dal)
    {
        posto.giacenza = static_cast<int>(mCronologia.giacenze.size());
        Sosta sosta;
        sosta.spedizione = i;
        sosta.data = dal;
        sosta.avvisi = 1;
        mCronologia.giacenze.push_back(sosta);
    }

    /// Numbers go by the day of storage, as they were given out.
    void numera()
    {
        auto& giacenze = mCronologia.giacenze;
        std::vector<std::size_t> ordine(giacenze.size());
        std::iota(ordine.begin(), ordine.end(), std::size_t{0});
        std::stable_sort(ordine.begin(), ordine.end(), [&giacenze](std::size_t a, std::size_t b) {
            return giacenze[a].data < giacenze[b].data;
        });
        int numero = 0;
        for (const std::size_t i : ordine)
            giacenze[i].numero = ++numero;
    }

    /// One notice on the day of storage and one for each week after it, while the case is open.
    void avvisa()
    {
        for (Sosta& sosta : mCronologia.giacenze) {
            const QDate fine = sosta.buonFine.isValid()     ? sosta.buonFine
                               : sosta.riconsegna.isValid() ? sosta.riconsegna
                                                            : mCronologia.oggi;
            sosta.avvisi = std::min(sosta.avvisi, 1 + static_cast<int>(sosta.data.daysTo(fine) / 7));
            if (sosta.avvisi > 0)
                sosta.ultimoAvviso = sosta.data.addDays(7 * (sosta.avvisi - 1));
        }
    }

    int mQuante;
    std::vector<QDate> mLavorativi;
    std::priority_queue<Attesa> mAttese;
    Cronologia mCronologia;
};

} // namespace

Cronologia cronologia(int spedizioni, QDate oggi, const Franchi& franchi)
{
    return Storia(spedizioni, oggi).svolgi(franchi);
}

} // namespace giacenza::dimostrazione
