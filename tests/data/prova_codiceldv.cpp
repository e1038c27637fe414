#include "data/codiceldv.h"

#include "support/stampa.h"

#include <gtest/gtest.h>

using giacenza::codiceLdv;
using giacenza::leggiCodiceLdv;
using namespace Qt::StringLiterals;

TEST(CodiceLdv, filialeNumeroEAnno)
{
    EXPECT_EQ(codiceLdv(u"MI"_s, u"4711"_s, u"2026"_s), u"MI-4711-2026"_s);
    EXPECT_EQ(codiceLdv({}, u"4711"_s, u"2026"_s), u"-4711-2026"_s);
    EXPECT_EQ(codiceLdv(u"MI"_s, {}, u"2026"_s), QString());
}

TEST(CodiceLdv, dueLettereDiVetturaNonHannoMaiLoStessoTesto)
{
    EXPECT_EQ(codiceLdv(u"M-I"_s, u"47"_s, u"2026"_s), u"M\\-I-47-2026"_s);
    EXPECT_EQ(codiceLdv(u"M"_s, u"I-47"_s, u"2026"_s), u"M-I\\-47-2026"_s);
    EXPECT_EQ(codiceLdv(u"M\\"_s, u"47"_s, u"2026"_s), u"M\\\\-47-2026"_s);
}

TEST(CodiceLdv, siRileggeComEraScritto)
{
    for (const auto& [filiale, numero] : {std::pair{u"MI"_s, u"4711"_s},
                                          {u""_s, u"1"_s},
                                          {u"M-I"_s, u"4\\7"_s},
                                          {u"\\-"_s, u"-\\"_s},
                                          {u"È"_s, u"00A/1"_s}}) {
        const auto letta = leggiCodiceLdv(codiceLdv(filiale, numero, u"2026"_s));
        ASSERT_TRUE(letta) << numero.toStdString();
        EXPECT_EQ(letta->filiale, filiale);
        EXPECT_EQ(letta->numero, numero);
        EXPECT_EQ(letta->anno, 2026);
    }
}

TEST(CodiceLdv, unAltroTestoNonNominaNessuna)
{
    for (const QString& testo :
         {u""_s, u"4711"_s, u"MI-4711"_s, u"MI--2026"_s, u"MI-4711-26"_s, u"MI-4711-20x6"_s,
          u"MI-4711-2026-1"_s, u"ORD-000123"_s, u"M\\I-4711-2026"_s, u"MI-4711-2026\\"_s})
        EXPECT_FALSE(leggiCodiceLdv(testo)) << testo.toStdString();
}
