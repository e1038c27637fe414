#include "database/valori.h"

#include "support/stampa.h"

#include <gmock/gmock.h>

using namespace giacenza;
using namespace Qt::StringLiterals;

namespace {

struct CasoArrotonda
{
    const char16_t* valore;
    int cifre;
    const char16_t* lontano;
    const char16_t* pari;
};

class Arrotonda : public testing::TestWithParam<CasoArrotonda>
{};

TEST_P(Arrotonda, neiDueModi)
{
    const auto& caso = GetParam();
    const QString valore = QString::fromUtf16(caso.valore);
    EXPECT_EQ(arrotonda(valore, caso.cifre, Arrotondamento::lontanoDaZero), QString::fromUtf16(caso.lontano));
    EXPECT_EQ(arrotonda(valore, caso.cifre, Arrotondamento::alPari), QString::fromUtf16(caso.pari));
}

INSTANTIATE_TEST_SUITE_P(
    Casi, Arrotonda,
    testing::Values(CasoArrotonda{u"0.999", 2, u"1.00", u"1.00"}, CasoArrotonda{u"1,5", 2, u"1.50", u"1.50"},
                    CasoArrotonda{u"0.125", 2, u"0.13", u"0.12"},
                    CasoArrotonda{u"0.135", 2, u"0.14", u"0.14"},
                    CasoArrotonda{u"1.005", 2, u"1.01", u"1.00"},
                    CasoArrotonda{u"2.675", 2, u"2.68", u"2.68"},
                    CasoArrotonda{u"-0.125", 2, u"-0.13", u"-0.12"},
                    CasoArrotonda{u"0.12500000000000000000000000001", 2, u"0.13", u"0.13"},
                    CasoArrotonda{u"0.12499999999999999999999999999", 2, u"0.12", u"0.12"},
                    CasoArrotonda{u"99.995", 2, u"100.00", u"100.00"}, CasoArrotonda{u"0.5", 0, u"1", u"0"},
                    CasoArrotonda{u"1.5", 0, u"2", u"2"}, CasoArrotonda{u"2.5", 0, u"3", u"2"},
                    CasoArrotonda{u"41.0", 0, u"41", u"41"}, CasoArrotonda{u" +7 ", 1, u"7.0", u"7.0"},
                    CasoArrotonda{u".5", 2, u"0.50", u"0.50"}, CasoArrotonda{u"5.", 2, u"5.00", u"5.00"}));

TEST(ArrotondaTesto, gliZeriDavantiNonContano)
{
    EXPECT_EQ(arrotonda(u"0070,10"_s, 2, Arrotondamento::alPari), u"70.10"_s);
    EXPECT_EQ(arrotonda(u"-0010"_s, 0, Arrotondamento::alPari), u"-10"_s);
    EXPECT_EQ(arrotonda(u"0.09"_s, 2, Arrotondamento::alPari), u"0.09"_s);
}

TEST(ArrotondaTesto, loZeroNonHaSegno)
{
    EXPECT_EQ(arrotonda(u"-0"_s, 2, Arrotondamento::alPari), u"0.00"_s);
    EXPECT_EQ(arrotonda(u"-0.001"_s, 2, Arrotondamento::lontanoDaZero), u"0.00"_s);
}

TEST(ArrotondaTesto, diOgniLunghezza)
{
    const QString lungo = QString(10000, u'9');
    EXPECT_EQ(arrotonda(lungo + u".995"_s, 2, Arrotondamento::alPari),
              u'1' + QString(10000, u'0') + u".00"_s);
}

TEST(ArrotondaTesto, altroEErrore)
{
    EXPECT_THROW(arrotonda(QString(), 2, Arrotondamento::alPari), ErroreConversione);
    try {
        arrotonda(u"1e3"_s, 2, Arrotondamento::alPari);
        FAIL();
    } catch (const ErroreConversione& errore) {
        EXPECT_EQ(errore.testo(), u"\"1e3\" non è un numero."_s);
    }
}

TEST(Somma, esatta)
{
    EXPECT_EQ(somma(u"0.1"_s, u"0.2"_s), u"0.3"_s);
    EXPECT_EQ(somma(u"1,50"_s, u"1"_s), u"2.50"_s);
    EXPECT_EQ(somma(u"10"_s, u"-12.25"_s), u"-2.25"_s);
    EXPECT_EQ(somma(u"9223372036854775807"_s, u"1"_s), u"9223372036854775808"_s);
    EXPECT_THROW(somma(u"1"_s, QString()), ErroreConversione);
}

TEST(Prodotto, esatto)
{
    EXPECT_EQ(prodotto(u"0.333"_s, u"3"_s), u"0.999"_s);
    EXPECT_EQ(prodotto(u"1,5"_s, u"7"_s), u"10.5"_s);
    EXPECT_EQ(prodotto(u"-0.05"_s, u"0.1"_s), u"-0.005"_s);
    EXPECT_EQ(prodotto(u"123456789012345678901"_s, u"10.10"_s), u"1246913569024691356900.10"_s);
    EXPECT_THROW(prodotto(u"x"_s, u"1"_s), ErroreConversione);
}

TEST(Confronta, perValoreNonPerTesto)
{
    EXPECT_EQ(confronta(u"15"_s, u"15.00"_s), std::strong_ordering::equal);
    EXPECT_EQ(confronta(u"10.50"_s, u"15"_s), std::strong_ordering::less);
    EXPECT_EQ(confronta(u"9"_s, u"10"_s), std::strong_ordering::less);
    EXPECT_EQ(confronta(u"0,1"_s, u"-2"_s), std::strong_ordering::greater);
    EXPECT_EQ(confronta(u"-0"_s, u"0"_s), std::strong_ordering::equal);
    EXPECT_THROW(confronta(u"1"_s, u"uno"_s), ErroreConversione);
}

} // namespace
