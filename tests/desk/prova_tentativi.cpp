#include "desk/dati/ricerca.h"
#include "desk/dati/tentativi.h"

#include "support/stampa.h"

#include <gmock/gmock.h>

#include <QStringList>

using namespace giacenza;
using namespace giacenza::desk;
using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

QStringList provati(const QString& testo)
{
    QStringList parole;
    for (const Tentativo& tentativo : tentativi(testo))
        parole << tentativo.parole;
    return parole;
}

} // namespace

TEST(Tentativi, unNumeroPuoEssereTutto)
{
    EXPECT_THAT(provati(u"231"_s), ElementsAre(u"LDV 231"_s, u"giacenza 231"_s, u"riferimento 231"_s));
    EXPECT_THAT(provati(u""_s), testing::IsEmpty());
}

TEST(Tentativi, conLAnnoPrimaLaGiacenza)
{
    EXPECT_THAT(provati(u"231/2026"_s),
                ElementsAre(u"giacenza 231 del 2026"_s, u"LDV 231 del 2026"_s, u"LDV 231/2026"_s,
                            u"giacenza 231/2026"_s, u"riferimento 231/2026"_s));
}

TEST(Tentativi, ilCodiceABarreBasta)
{
    for (const QString& letto : {u"MI-4711-2026"_s, u"MI'4711'2026"_s, u"MI/4711/2026"_s}) {
        const auto tutti = tentativi(letto);
        EXPECT_EQ(tutti.front().parole, u"LDV 4711 del 2026 della filiale MI"_s);
        EXPECT_THAT(tutti.front().parametri, ElementsAre(u"MI"_s, u"4711"_s, u"2026"_s));
        EXPECT_TRUE(tutti.front().basta);
    }
    EXPECT_EQ(provati(u"-4711-2026"_s).front(), u"LDV 4711 del 2026"_s);
    EXPECT_EQ(provati(u"ORD-000123"_s).front(), u"LDV ORD-000123"_s);
}

TEST(Tentativi, unTestoLungoESoloUnRiferimento)
{
    EXPECT_THAT(provati(QString(21, u'x')), ElementsAre(u"riferimento "_s + QString(21, u'x')));
    EXPECT_THAT(provati(QString(61, u'x')), testing::IsEmpty());
}

TEST(SenzaEsito, diceCheCosaSiECercatoOCheETroppoLungo)
{
    EXPECT_EQ(senzaEsito({u"x"_s, provati(QString(21, u'x')), {}}),
              u"Nessuna corrispondenza per x. Cercato come: riferimento xxxxxxxxxxxxxxxxxxxxx."_s);
    const QString lungo(61, u'x');
    EXPECT_EQ(
        senzaEsito({lungo, provati(lungo), {}}),
        u"Nessuna corrispondenza: ciò che è scritto ha 61 caratteri, e nessun numero ne ha più di 60."_s);
}

TEST(Ripulito, togliCioCheNonSiVede)
{
    EXPECT_EQ(ripulito(u"\x02 4711\r\n\t"_s), u"4711"_s);
    EXPECT_EQ(ripulito(u"DDT 17"_s), u"DDT 17"_s);
}
