#include "schema/dati/cronologia.h"

#include "support/stampa.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

using namespace giacenza::dimostrazione;

namespace {

class StoriaDelDeposito : public testing::Test
{
protected:
    const QDate mOggi{2026, 3, 4};
    const Cronologia mStoria = cronologia(3000, mOggi);
};

TEST_F(StoriaDelDeposito, haTanteSpedizioniQuanteSiChiedono)
{
    for (const int quante : {0, 1, 7, 500})
        EXPECT_EQ(cronologia(quante, mOggi).spedizioni.size(), static_cast<std::size_t>(quante));
}

TEST_F(StoriaDelDeposito, coprePiuAnniFinoAOggi)
{
    EXPECT_EQ(mStoria.spedizioni.front().data, QDate(2023, 1, 2)) << "the first working day";
    EXPECT_EQ(mStoria.spedizioni.back().data, mOggi);
    for (const Posto& posto : mStoria.spedizioni)
        EXPECT_LE(posto.data.dayOfWeek(), Qt::Friday);
}

TEST_F(StoriaDelDeposito, numeraOgniAnnoDaUno)
{
    int anno = 0;
    int numero = 0;
    for (const Posto& posto : mStoria.spedizioni) {
        if (posto.data.year() != anno) {
            anno = posto.data.year();
            numero = 0;
        }
        EXPECT_EQ(posto.numero, ++numero);
    }
    EXPECT_EQ(anno, 2026);
}

TEST_F(StoriaDelDeposito, numeraLeGiacenzeNellOrdineInCuiSonoNate)
{
    auto giacenze = mStoria.giacenze;
    std::sort(giacenze.begin(), giacenze.end(),
              [](const Sosta& a, const Sosta& b) { return a.numero < b.numero; });
    ASSERT_GT(giacenze.size(), 100U);
    for (std::size_t i = 0; i < giacenze.size(); ++i) {
        EXPECT_EQ(giacenze[i].numero, static_cast<int>(i) + 1);
        EXPECT_LE(giacenze[i == 0 ? 0 : i - 1].data, giacenze[i].data);
    }
}

TEST_F(StoriaDelDeposito, nonAnticipaNulla)
{
    for (const Sosta& sosta : mStoria.giacenze) {
        const Posto& posto = mStoria.spedizioni[static_cast<std::size_t>(sosta.spedizione)];
        EXPECT_LT(posto.data, sosta.data);
        EXPECT_LE(sosta.data, mOggi);
        EXPECT_EQ(sosta.avvisi > 0, sosta.ultimoAvviso.isValid());
        if (sosta.avvisi > 0) {
            EXPECT_GE(sosta.ultimoAvviso, sosta.data);
            EXPECT_LE(sosta.ultimoAvviso, sosta.buonFine.isValid() ? sosta.buonFine : mOggi);
        }
        EXPECT_TRUE(!sosta.riconsegna.isValid() || sosta.data < sosta.riconsegna);
        if (!sosta.buonFine.isValid())
            continue;
        EXPECT_GT(sosta.avvisi, 0) << "a case is closed only after its first notice";
        EXPECT_LE(sosta.buonFine, mOggi);
        EXPECT_LT(sosta.riconsegna.isValid() ? sosta.riconsegna : sosta.data, sosta.buonFine);
    }
}

TEST_F(StoriaDelDeposito, unaRiconsegnaNonVaInGiacenza)
{
    std::set<int> rese;
    for (const Posto& posto : mStoria.spedizioni) {
        if (posto.riconsegnaDi < 0)
            continue;
        EXPECT_EQ(posto.giacenza, -1);
        EXPECT_EQ(rese.count(posto.riconsegnaDi), 0U) << "a shipment that went back came again";
        EXPECT_LT(mStoria.giacenze[static_cast<std::size_t>(posto.riconsegnaDi)].data, posto.data);
        if (posto.reso)
            rese.insert(posto.riconsegnaDi);
    }
    EXPECT_GT(rese.size(), 10U);
}

TEST_F(StoriaDelDeposito, iGiorniRecentiNeHannoDiPiu)
{
    const auto nellAnnoFinoA = [this](QDate fine) {
        return std::count_if(
            mStoria.spedizioni.begin(), mStoria.spedizioni.end(),
            [fine](const Posto& posto) { return posto.data > fine.addYears(-1) && posto.data <= fine; });
    };
    EXPECT_GT(nellAnnoFinoA(mOggi), 3 * nellAnnoFinoA(mOggi.addYears(-2)) / 2);
}

TEST_F(StoriaDelDeposito, unSabatoFinisceAlVenerdi)
{
    EXPECT_EQ(cronologia(3000, QDate(2026, 3, 7)).spedizioni.back().data, QDate(2026, 3, 6));
}

} // namespace
