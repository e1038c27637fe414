#include "reports/engine/codiceabarre.h"

#include <gmock/gmock.h>

using namespace giacenza::report;
using namespace Qt::StringLiterals;

namespace {

const QRectF area(108, 10, 82, 11);

TEST(Code128, moduliEBarre)
{
    // "1234" in set C: start 11, two pairs 22, check 11, stop 13 modules.
    const auto codice = code128(u"1234"_s, area);
    ASSERT_TRUE(codice);
    EXPECT_NEAR(codice->area.width(), 57 * 0.5, 0.001);
    EXPECT_EQ(codice->area.topLeft(), area.topLeft());
    ASSERT_EQ(codice->barre.size(), 16U); // three in each of four symbols, four in the stop
    EXPECT_NEAR(codice->barre.front().left(), area.left(), 0.001);
    EXPECT_NEAR(codice->barre.front().width(), 2 * 0.5, 0.001);
    EXPECT_NEAR(codice->barre.back().right(), codice->area.right(), 0.001);
}

TEST(Code128, unNumeroLungoSiStringeFinCheSiLegge)
{
    const auto codice = code128(QString(50, u'7'), area);
    ASSERT_TRUE(codice);
    EXPECT_LE(codice->area.width(), area.width() + 0.001);
    EXPECT_FALSE(code128(QString(50, u'7'), QRectF(0, 0, 40, 11)));
}

TEST(Code128, allineamenti)
{
    EXPECT_NEAR(code128(u"1234"_s, area, Allineamento::destra)->area.right(), area.right(), 0.001);
    EXPECT_NEAR(code128(u"1234"_s, area, Allineamento::centro)->area.center().x(), area.center().x(), 0.001);
}

TEST(Code128, testiCheIlCodiceNonTiene)
{
    EXPECT_FALSE(code128({}, area));
    EXPECT_FALSE(code128(u"12€34"_s, area));
    EXPECT_FALSE(code128(u"📦"_s, area));
    EXPECT_FALSE(code128(QString(300, u'A'), area));
}

TEST(Code128, lettereEAccenti)
{
    EXPECT_TRUE(code128(u"AB/12-b"_s, area));
    EXPECT_TRUE(code128(u"LDVé"_s, area));
}

} // namespace
