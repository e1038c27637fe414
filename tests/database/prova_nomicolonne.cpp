#include "database/nomicolonne.h"

#include <gtest/gtest.h>

using namespace giacenza;
using namespace Qt::StringLiterals;

namespace {

TEST(NomiColonne, siTrovanoSenzaMaiuscole)
{
    const NomiColonne nomi({u"LeNrLv"_s, u"Località"_s, u"Σίσυφος"_s});
    EXPECT_EQ(nomi.posto(u"lenrlv"_s), 0);
    EXPECT_EQ(nomi.posto(u"LENRLV"_s), 0);
    EXPECT_EQ(nomi.posto(u"LOCALITÀ"_s), 1);
    EXPECT_EQ(nomi.posto(u"ΣΊΣΥΦΟΣ"_s), 2);
    EXPECT_EQ(nomi.posto(u"lenrl"_s), -1);
    EXPECT_EQ(nomi.posto(u""_s), -1);
}

TEST(NomiColonne, diDueUgualiVinceIlPrimo)
{
    const NomiColonne nomi({u"altro"_s, u"codice"_s, u"Codice"_s, u"CODICE"_s, u"ultimo"_s});
    EXPECT_EQ(nomi.posto(u"CODICE"_s), 1);
    EXPECT_EQ(nomi.posto(u"ultimo"_s), 4) << "quelli dopo tengono il loro posto";
}

TEST(NomiColonne, rispondonoComeIlConfrontoDiTuttiINomi)
{
    const std::vector<QString> tutti{u"straße"_s, u"STRASSE"_s, u"İ"_s, u"i"_s, u"ı"_s,
                                     u"𐐀x"_s,     u"a b"_s,     u""_s,  u"K"_s, u"ſ"_s};
    const NomiColonne nomi(tutti);
    std::vector<QString> cercati{u"STRAßE"_s, u"strasse"_s, u"I"_s, u"𐐨X"_s,
                                 u"A B"_s,    u"K"_s,       u"S"_s, u"zz"_s};
    cercati.insert(cercati.end(), tutti.begin(), tutti.end());
    for (const QString& cercato : cercati) {
        qsizetype atteso = -1;
        for (int colonna = nomi.quanti() - 1; colonna >= 0; --colonna)
            if (nomi[colonna].compare(cercato, Qt::CaseInsensitive) == 0)
                atteso = colonna;
        EXPECT_EQ(nomi.posto(cercato), atteso) << cercato.toStdString();
    }
}

TEST(NomiColonne, senzaColonneNonCENessuno)
{
    EXPECT_TRUE(NomiColonne().vuoti());
    EXPECT_EQ(NomiColonne().posto(u"codice"_s), -1);
}

} // namespace
