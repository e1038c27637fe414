#include "data/istruzionidesk.h"

#include "support/stampa.h"

#include <gtest/gtest.h>

using namespace giacenza;
using namespace Qt::StringLiterals;

namespace {

const QString caso =
    u"select GINRGI, GIANGI, GIFILI, GINRLV, GIANLV, GICODI, GIFIGI, GIDTGI, GINRAV, GIDTAV, GIDES1, "
    "letve00f.ledtlv, letve00f.ledest, letve00f.lelocd, letve00f.leprod, letve00f.lerife, letve00f.lecoll, "
    "letve00f.lepeso, clien.RagioneSociale, FACODI, FADFGI, FAFRGI, FATGIG, FAMIGI, (select count(*) from "
    "letve00f legata where legata.LERFGI=GINRGI and legata.LEANGI=GIANGI) as Legate, (select "
    "max(legata.ledtlv) from letve00f legata where legata.LERFGI=GINRGI and legata.LEANGI=GIANGI) as "
    "UltimaLegata, (select count(*) from letve00f omonima where omonima.lenrlv=GINRLV and "
    "omonima.leanlv=GIANLV and omonima.lefili<>coalesce(GIFILI,'')) as Omonime"_s;

const QString unione =
    u" from ((giace00f left join letve00f on lefili=GIFILI and lenrlv=GINRLV and leanlv=GIANLV) left join "
    "clien on clien.Codice=GICODI) left join tabfatturazione on FALCOD='C' and FACODI=letve00f.lecodi and "
    "FACMPE=letve00f.lecmpe where "_s;

const QString trovata =
    u"select lefili, lenrlv, leanlv, ledtlv, lecodi, clien.RagioneSociale, ledest, lelocd, lerife, lerico, "
    "coalesce(sua.GINRGI, altra.GINRGI), coalesce(sua.GIANGI, altra.GIANGI), coalesce(sua.GIDTGI, "
    "altra.GIDTGI), case when sua.GINRGI is null then altra.GIDTBF else sua.GIDTBF end, case when "
    "sua.GINRGI is null then 0 else 1 end from ((letve00f left join giace00f sua on sua.GIFILI=lefili and "
    "sua.GINRLV=lenrlv and sua.GIANLV=leanlv) left join giace00f altra on altra.GINRGI=LERFGI and "
    "altra.GIANGI=LEANGI) left join clien on clien.Codice=lecodi where "_s;

const QString trovataGiacenza =
    u"select GIFILI, GINRLV, GIANLV, ledtlv, coalesce(GICODI, lecodi), clien.RagioneSociale, ledest, lelocd, "
    "lerife, lerico, GINRGI, GIANGI, GIDTGI, GIDTBF, 1 from (giace00f left join letve00f on lefili=GIFILI "
    "and lenrlv=GINRLV and leanlv=GIANLV) left join clien on clien.Codice=GICODI where "_s;

} // namespace

TEST(IstruzioniDesk, iCasiAperti)
{
    EXPECT_EQ(istruzioni::casiAperti(), caso + unione + u"GIDTBF is null order by GIDTGI, GINRGI"_s);
    EXPECT_EQ(
        istruzioni::casiApertiFiliale(),
        caso + unione +
            u"GIDTBF is null and (GIFIGI=? or (GIFIGI is null and GIFILI=?)) order by GIDTGI, GINRGI"_s);
}

TEST(IstruzioniDesk, unCasoIntero)
{
    EXPECT_EQ(istruzioni::casoIntero(),
              caso + u", GIDTBF, GIGGSO, GIIMGI, FissoGiacenza, GINRFA, GIDTFA, GIVNRG, GIVDTG"_s + unione +
                  u"GINRGI=? and GIANGI=?"_s);
    EXPECT_EQ(istruzioni::lettereLegate(),
              u"select lefili, lenrlv, leanlv, ledtlv, lerico, ledest, lelocd, leflbc, LEDTCO, lenote from "
              "letve00f where LERFGI=? and LEANGI=? order by ledtlv, lenrlv"_s);
}

TEST(IstruzioniDesk, leLettereTrovate)
{
    const QString ordine = u" order by ledtlv desc, lefili"_s;
    EXPECT_EQ(istruzioni::ldvPerNumero(), trovata + u"lenrlv=?"_s + ordine);
    EXPECT_EQ(istruzioni::ldvPerNumeroAnno(), trovata + u"lenrlv=? and leanlv=?"_s + ordine);
    EXPECT_EQ(istruzioni::ldvPerChiave(), trovata + u"lefili=? and lenrlv=? and leanlv=?"_s + ordine);
    EXPECT_EQ(istruzioni::ldvPerRiferimento(), trovata + u"lerife=?"_s + ordine);
}

TEST(IstruzioniDesk, leGiacenzeTrovate)
{
    EXPECT_EQ(istruzioni::giacenzaPerNumero(), trovataGiacenza + u"GINRGI=? order by GIANGI desc"_s);
    EXPECT_EQ(istruzioni::giacenzaPerNumeroAnno(),
              trovataGiacenza + u"GINRGI=? and GIANGI=? order by GIANGI desc"_s);
}
