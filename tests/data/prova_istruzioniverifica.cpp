#include "data/istruzioniverifica.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

using namespace giacenza;
using istruzioni::Lettura;

namespace {

const ChiaveGiacenza nuova{u"42"_s, 2026};

TEST(Verifica, laGiacenza)
{
    EXPECT_EQ(
        istruzioni::giacenzaRegistrata(nuova, u"4711"_s, Lettura::conBlocco),
        u"select GINRGI from giace00f where GINRGI='42' and GIANGI=2026 and GINRLV='4711' lock in share mode;"_s);
    EXPECT_EQ(istruzioni::giacenzaRegistrata(nuova, u"4711"_s, Lettura::semplice),
              u"select GINRGI from giace00f where GINRGI='42' and GIANGI=2026 and GINRLV='4711';"_s);
}

TEST(Verifica, ilLegame)
{
    EXPECT_EQ(
        istruzioni::legameRegistrato(nuova, u"4711"_s, 2025, Lettura::conBlocco),
        u"select LERFGI from letve00f where lenrlv='4711' and leanlv=2025 and LERFGI='42' and LEANGI=2026 "
        "lock in share mode;"_s);
    EXPECT_EQ(
        istruzioni::legameRegistrato(nuova, u"4711"_s, 2025, Lettura::semplice),
        u"select LERFGI from letve00f where lenrlv='4711' and leanlv=2025 and LERFGI='42' and LEANGI=2026;"_s);
}

TEST(Verifica, chiTieneLaSpedizione)
{
    EXPECT_EQ(
        istruzioni::giacenzaCheTiene({u"MI"_s, u"4711"_s, 2025}),
        u"select GINRGI, GIANGI, GIDTGI from giace00f where GIFILI='MI' and GINRLV='4711' and GIANLV=2025;"_s);
}

TEST(Verifica, unApiceNonEsceDalSuoPosto)
{
    EXPECT_THROW(istruzioni::giacenzaRegistrata(nuova, u"4'"_s, Lettura::semplice), ErroreDatabase);
    EXPECT_THROW(istruzioni::legameRegistrato({u"4'"_s, 2026}, u"1"_s, 2025, Lettura::semplice),
                 ErroreDatabase);
    EXPECT_THROW(istruzioni::giacenzaCheTiene({u"M'"_s, u"4711"_s, 2025}), ErroreDatabase);
    EXPECT_THROW(istruzioni::giacenzaCheTiene({u"MI"_s, u"4'"_s, 2025}), ErroreDatabase);
}

} // namespace
