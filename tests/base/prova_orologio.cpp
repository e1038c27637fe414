#include "base/orologio.h"

#include <QByteArray>

#include <gtest/gtest.h>

using giacenza::impostaOggi;
using giacenza::oggi;

namespace {

class Orologio : public ::testing::Test
{
protected:
    ~Orologio() override
    {
        impostaOggi({});
        qunsetenv("GIACENZA_OGGI");
    }
};

} // namespace

TEST_F(Orologio, senzaAltroEIlGiornoDellaMacchina)
{
    const QDate prima = QDate::currentDate();
    const QDate detto = oggi();
    EXPECT_TRUE(detto == prima || detto == QDate::currentDate());
}

TEST_F(Orologio, laVariabileSiLeggeAOgniChiamata)
{
    qputenv("GIACENZA_OGGI", "2024-02-29");
    EXPECT_EQ(oggi(), QDate(2024, 2, 29));
    qputenv("GIACENZA_OGGI", "2023-12-31");
    EXPECT_EQ(oggi(), QDate(2023, 12, 31));
}

TEST_F(Orologio, unaVariabileSbagliataNonContaNulla)
{
    for (const char* sbagliata : {"2023-02-29", "31/12/2023", "oggi", "2023-1-1", ""}) {
        qputenv("GIACENZA_OGGI", sbagliata);
        EXPECT_GE(oggi(), QDate::currentDate().addDays(-1)) << sbagliata;
    }
}

TEST_F(Orologio, ilGiornoImpostoVaAvantiATutto)
{
    qputenv("GIACENZA_OGGI", "2024-02-29");
    impostaOggi(QDate(2001, 1, 2));
    EXPECT_EQ(oggi(), QDate(2001, 1, 2));
    impostaOggi({});
    EXPECT_EQ(oggi(), QDate(2024, 2, 29));
}
