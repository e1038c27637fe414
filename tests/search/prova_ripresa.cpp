#include "search/ripresa.h"

#include <gmock/gmock.h>

using namespace giacenza;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

using Riga = Ripresa::Riga;

/// A row as the lists have it: number, date, and something more.
Riga riga(const char* numero, const char* data, const char* altro = "")
{
    return {QByteArray(numero), QByteArray(data), QByteArray(altro)};
}

Ripresa ripresa(const std::vector<Riga>& mostrate)
{
    Ripresa nuova(PostiScelta{0, 1, true});
    for (const Riga& mostrata : mostrate)
        nuova.mostrata(mostrata);
    return nuova;
}

/// What a second reading adds to the list.
std::vector<Riga> seguito(Ripresa& ripresa, const std::vector<Riga>& lette)
{
    std::vector<Riga> aggiunte;
    for (const Riga& letta : lette)
        for (const Riga& aggiunta : ripresa.segue(letta))
            aggiunte.push_back(aggiunta);
    return aggiunte;
}

const Riga a = riga("1", "2026-01-01");
const Riga b = riga("2", "2026-01-01");
const Riga c = riga("3", "2026-01-01");

TEST(RipresaElenco, saltaLeRigheMostrateInQualunqueOrdineTornino)
{
    Ripresa elenco = ripresa({a, b});
    EXPECT_THAT(seguito(elenco, {b, c}), ElementsAre(c));
    EXPECT_FALSE(elenco.finita());
    EXPECT_THAT(seguito(elenco, {a}), IsEmpty());
    EXPECT_TRUE(elenco.finita());
    EXPECT_THAT(seguito(elenco, {a}), ElementsAre(a)) << "mostrata una volta, saltata una volta";
}

TEST(RipresaElenco, unaRigaCambiataDopoNonTornaUnaSecondaVolta)
{
    Ripresa elenco = ripresa({a, b});
    EXPECT_THAT(seguito(elenco, {riga("1", "2026-01-01", "in giacenza"), b, c}), ElementsAre(c));
}

TEST(RipresaElenco, unaRigaToltaDopoNonNeFaSaltareUnAltra)
{
    Ripresa elenco = ripresa({a, b});
    EXPECT_THAT(seguito(elenco, {b, c}), ElementsAre(c));
}

TEST(RipresaElenco, unaRigaNuovaTraLePrimeNonSiPerde)
{
    Ripresa elenco = ripresa({a, c});
    EXPECT_THAT(seguito(elenco, {a, b, c}), ElementsAre(b));
}

// The key of the lists does not name the year of the waybill's number.
TEST(RipresaElenco, diDueRigheConLaStessaChiaveRestaQuellaNonMostrata)
{
    const Riga prima = riga("1", "2026-01-01", "prima");
    const Riga seconda = riga("1", "2026-01-01", "seconda");
    for (const std::vector<Riga>& lette : {std::vector{prima, seconda}, std::vector{seconda, prima}}) {
        Ripresa elenco = ripresa({prima});
        EXPECT_THAT(seguito(elenco, lette), ElementsAre(seconda));
        EXPECT_TRUE(elenco.finita());
    }
    Ripresa tutte = ripresa({prima, seconda});
    EXPECT_THAT(seguito(tutte, {seconda, prima, c}), ElementsAre(c));
}

TEST(RipresaElenco, diRigheUgualiContaQuante)
{
    Ripresa elenco = ripresa({a, a});
    EXPECT_THAT(seguito(elenco, {a, a, a}), ElementsAre(a));
}

TEST(RipresaElenco, unNulloNonEUnTestoVuoto)
{
    const Riga nullo{QByteArray("1"), QByteArray("2026-01-01"), std::nullopt};
    Ripresa elenco = ripresa({nullo});
    EXPECT_THAT(seguito(elenco, {a, nullo}), ElementsAre(a));
}

TEST(RipresaElenco, senzaRigheMostrateTuttoSegue)
{
    Ripresa elenco = ripresa({});
    EXPECT_TRUE(elenco.finita());
    EXPECT_THAT(seguito(elenco, {a, b}), ElementsAre(a, b));
}

} // namespace
