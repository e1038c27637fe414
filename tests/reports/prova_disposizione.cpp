#include "reports/engine/disposizione.h"

#include <gmock/gmock.h>

using namespace giacenza::report;
using namespace Qt::StringLiterals;

namespace {

Controllo riquadro(double y, double altezza, int gruppo = 0)
{
    Controllo controllo = campo(u"txt"_s, {0, y, 50, altezza}, {});
    controllo.gruppo = gruppo;
    return controllo;
}

std::vector<double> cime(const std::vector<Controllo>& controlli, const std::vector<double>& altezze)
{
    std::vector<double> y;
    for (const QRectF& area : disponi(controlli, altezze))
        y.push_back(area.top());
    return y;
}

using testing::ElementsAre;

TEST(Disposizione, senzaCambiamentiTuttoSta)
{
    EXPECT_THAT(cime({riquadro(0, 5), riquadro(7, 5), riquadro(30, 5)}, {5, 5, 5}), ElementsAre(0, 7, 30));
}

TEST(Disposizione, chiCresceSpingeChiStaSotto)
{
    EXPECT_THAT(cime({riquadro(0, 5), riquadro(7, 5), riquadro(30, 5)}, {9, 8, 5}), ElementsAre(0, 11, 37));
}

TEST(Disposizione, chiSparisceLasciaSalire)
{
    EXPECT_THAT(cime({riquadro(0, 5), riquadro(5, 5), riquadro(10, 5), riquadro(15, 5)}, {5, 0, 0, 5}),
                ElementsAre(0, 5, 5, 5));
}

TEST(Disposizione, fiancoAFiancoValeIlPiuBasso)
{
    // Two columns: the left grows by 6, the right loses 5; what stands below both follows the left.
    EXPECT_THAT(cime({riquadro(0, 5), riquadro(0, 5), riquadro(6, 5)}, {11, 0, 5}), ElementsAre(0, 0, 12));
}

TEST(Disposizione, iGruppiNonSiSpingono)
{
    const std::vector<Controllo> controlli = {riquadro(0, 5, 1), riquadro(6, 5, 1), riquadro(0, 5, 2),
                                              riquadro(6, 5, 2), riquadro(12, 5)};
    EXPECT_THAT(cime(controlli, {5, 5, 20, 5, 5}), ElementsAre(0, 6, 0, 21, 27));
}

TEST(Disposizione, ilFiloSegueESpinge)
{
    const std::vector<Controllo> controlli = {riquadro(0, 5), cornice(u"lin"_s, {0, 6, 50, 0}, nero),
                                              riquadro(8, 5)};
    EXPECT_THAT(cime(controlli, {8, 0, 5}), ElementsAre(0, 9, 11));
}

TEST(Disposizione, dueFiliAllaStessaAltezza)
{
    const std::vector<Controllo> controlli = {riquadro(0, 5), cornice(u"a"_s, {0, 6, 20, 0}, nero),
                                              cornice(u"b"_s, {30, 6, 20, 0}, nero)};
    EXPECT_THAT(cime(controlli, {8, 0, 0}), ElementsAre(0, 9, 9));
}

TEST(Disposizione, laCorniceSegueIlContenuto)
{
    const std::vector<Controllo> controlli = {cornice(u"cor"_s, {0, 10, 50, 20}, nero), riquadro(12, 5),
                                              riquadro(20, 5), riquadro(35, 5)};
    const std::vector<QRectF> aree = disponi(controlli, std::vector<double>{20, 9, 5, 5});
    EXPECT_EQ(aree[0], QRectF(0, 10, 50, 24));
    EXPECT_EQ(aree[2].top(), 24);
    EXPECT_EQ(aree[3].top(), 39);
}

TEST(Disposizione, laCorniceSiChiudeSulleRigheSparite)
{
    const std::vector<Controllo> controlli = {cornice(u"cor"_s, {0, 10, 50, 22}, nero), riquadro(12, 5),
                                              riquadro(17, 5), riquadro(22, 5), riquadro(40, 5)};
    const std::vector<QRectF> aree = disponi(controlli, std::vector<double>{22, 0, 0, 5, 5});
    EXPECT_EQ(aree[0], QRectF(0, 10, 50, 12));
    EXPECT_EQ(aree[3].top(), 12);
    EXPECT_EQ(aree[4].top(), 30);
}

TEST(Disposizione, lOrdineDeiControlliNonConta)
{
    EXPECT_THAT(cime({riquadro(30, 5), riquadro(7, 5), riquadro(0, 5)}, {5, 8, 9}), ElementsAre(37, 11, 0));
}

} // namespace
