#include "reports/letters/codiceldv.h"

#include "support/stampa.h"

#include <gtest/gtest.h>

using giacenza::report::codiceLdv;
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
