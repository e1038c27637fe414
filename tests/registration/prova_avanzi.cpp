// What one case leaves on the registration screen is not written into the next one.

#include "registration/registrazionediprova.h"

#include "support/stampa.h"

#include <QLineEdit>

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;

namespace {

class AvanziRegistrazione : public RegistrazioneDiProva
{};

INSTANTIATE_TEST_SUITE_P(Basi, AvanziRegistrazione, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(AvanziRegistrazione, LaDataDellAvvisoAppenaEmessoNonEDellaGiacenzaDopo)
{
    consegna(u"4711"_s);
    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Giacenza aggiunta in database."_s));
    mMessaggi.prendi();
    EXPECT_EQ(mostrato("lblDataAvviso"), u"2026-11-21"_s);
    EXPECT_FALSE(avanzo("lblDataAvviso")) << "it is this case's";

    consegna(u"4712"_s);
    EXPECT_EQ(mostrato("lblDataAvviso"), u"2026-11-21"_s);
    EXPECT_TRUE(avanzo("lblDataAvviso"));
    fallisce(u"select GINRAV"_s);
    clicca("cmdSalva");
    guarisce();
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Giacenza aggiunta in database."_s));
    EXPECT_EQ(mBase.righe(u"select GINRGI,GINRAV,GIDTAV,GIDTBF from giace00f where GINRLV='4712'"_s),
              (QList<QStringList>{{u"43"_s, u"NULL"_s, u"NULL"_s, u"NULL"_s}}))
        << "a case without a notice cannot be closed";
}

TEST_P(AvanziRegistrazione, LaGiacenzaPrecedenteNonPassaAlCasoDopo)
{
    consegna(u"4711"_s);
    giacenza::scrivi(c("txtDataGiaOld"), u"02/02/2026"_s);
    consegna(u"4712"_s);
    EXPECT_TRUE(avanzo("txtDataGiaOld")) << "typed for a case that was not saved";
    consegna(u"4711"_s);
    scrivi("txtGiaOld", u"17"_s);
    giacenza::scrivi(c("txtDataGiaOld"), u"01/03/2026"_s);
    clicca("cmdSalva");
    EXPECT_EQ(mMessaggi.prendi().size(), 1U);
    EXPECT_FALSE(avanzo("txtDataGiaOld")) << "it is this case's";

    consegna(u"4712"_s);
    EXPECT_TRUE(avanzo("txtDataGiaOld"));
    clicca("cmdSalva");
    EXPECT_EQ(mMessaggi.prendi().size(), 1U);
    EXPECT_EQ(
        mBase.righe(u"select GINRLV,GIVNRG,GIVDTG from giace00f where GINRLV in ('4711','4712') order by "
                    "GINRLV"_s),
        (QList<QStringList>{{u"4711"_s, u"17"_s, u"2026-03-01"_s}, {u"4712"_s, u"NULL"_s, u"NULL"_s}}));
}

TEST_P(AvanziRegistrazione, LAvvertenzaDellaFilialeValeDopoOgniRicerca)
{
    mBase.esegui(u"update giace00f set GIFIGI='QQ' where GINRLV='4714'"_s);
    consegna(u"4711"_s);
    EXPECT_TRUE(c("txtFilialeGia")->hasFocus()) << "where the clerk types next";
    consegna(u"4714"_s);
    EXPECT_EQ(mostrato("lblAvvFilialeGia"), u"⚠ filiale sconosciuta"_s) << "nobody is typing there";
    consegna(u"4711"_s);
    EXPECT_FALSE(c("lblAvvFilialeGia")->isVisible());
}

} // namespace
