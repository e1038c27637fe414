// The lists in an order, whose first page MariaDB gives alone: the same rows come as from the whole
// statement.

#include "search/elencoapagine.h"

#include <algorithm>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;
using testing::ElementsAre;

class ElencoAPagine : public ElencoAPagineDiProva
{};

INSTANTIATE_TEST_SUITE_P(Basi, ElencoAPagine, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

namespace {

QStringList ordinati(QStringList valori)
{
    std::sort(valori.begin(), valori.end());
    return valori;
}

} // namespace

TEST_P(ElencoAPagine, leRigheSonoQuelleDellIstruzioneInteraENelloStessoOrdine)
{
    scrivi(1, 1000, u"10000-i"_s);
    for (const ModoRicerca modo : {ModoRicerca::riferimento, ModoRicerca::letteraVettura}) {
        apri(modo);
        EXPECT_EQ(mModello.rowCount(), 256);
        EXPECT_FALSE(mModello.completo());
        leggiTutto();
        EXPECT_TRUE(mModello.completo());
        EXPECT_EQ(colonna(0), intero(modo));
    }
}

TEST_P(ElencoAPagine, conMolteRigheDiOrdineUgualeNessunaMancaENessunaTornaDueVolte)
{
    scrivi(1, 200, u"'A'"_s);
    scrivi(201, 1000, u"'B'"_s);
    scrivi(1201, 1000, u"'B'"_s);
    scrivi(2201, 200, u"'C'"_s);
    apri(ModoRicerca::riferimento);
    leggiTutto();
    EXPECT_EQ(ordinati(colonna(0)), ordinati(intero(ModoRicerca::riferimento)));
    const QStringList riferimenti = colonna(2);
    EXPECT_TRUE(std::is_sorted(riferimenti.begin(), riferimenti.end()));
    EXPECT_EQ(riferimenti.size(), 2400);
}

TEST_P(ElencoAPagine, leIstruzioniSonoInteraENellOrdineELaConnessioneNonResta)
{
    scrivi(1, 300, u"'R'"_s);
    const QString testo = istruzione(ModoRicerca::letteraVettura);
    apri(ModoRicerca::letteraVettura);
    const QStringList unaPagina{u"apertura"_s, testo};
    EXPECT_EQ(mEventi, mariadb() ? unaPagina + QStringList{u"chiusura"_s} : unaPagina);
    mEventi.clear();
    mModello.fetchMore({});
    EXPECT_EQ(mEventi, mariadb() ? unaPagina + QStringList{u"chiusura"_s} : QStringList{u"chiusura"_s});
    EXPECT_TRUE(mModello.completo());
    EXPECT_EQ(mModello.rowCount(), 300);
}

TEST_P(ElencoAPagine, oltreLaSecondaPaginaLIstruzioneNonSiRipete)
{
    scrivi(1, 1000, u"'R'"_s);
    apri(ModoRicerca::riferimento);
    mModello.fetchMore({});
    mEventi.clear();
    leggiTutto();
    EXPECT_THAT(mEventi, ElementsAre(u"chiusura"_s));
    EXPECT_EQ(mModello.rowCount(), 1000);
}

TEST_P(ElencoAPagine, unaPaginaEsattaEFinitaEUnaRigaInPiuNo)
{
    scrivi(1, 256, u"'R'"_s);
    apri(ModoRicerca::letteraVettura);
    EXPECT_TRUE(mModello.completo());
    EXPECT_FALSE(mModello.canFetchMore({}));
    EXPECT_THAT(mEventi, ElementsAre(u"apertura"_s, istruzione(ModoRicerca::letteraVettura), u"chiusura"_s));
    scrivi(257, 1, u"'R'"_s);
    apri(ModoRicerca::letteraVettura);
    EXPECT_FALSE(mModello.completo());
    EXPECT_EQ(mModello.rowCount(), 256);
    leggiTutto();
    EXPECT_EQ(mModello.rowCount(), 257);
    EXPECT_EQ(mModello.index(256, 0).data(), u"257"_s);
}

TEST_P(ElencoAPagine, chiusoDopoLaPrimaPaginaNonLeggePiu)
{
    scrivi(1, 300, u"'R'"_s);
    apri(ModoRicerca::riferimento);
    mModello.chiudi();
    EXPECT_FALSE(mModello.canFetchMore({}));
    EXPECT_EQ(mModello.rowCount(), 256);
    EXPECT_FALSE(mModello.completo());
}
