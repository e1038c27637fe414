#include "data/istruzioni.h"

#include "database/valori.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

using namespace giacenza;
using namespace Qt::StringLiterals;

namespace {

const QDate oggi(2024, 3, 5);
const ChiaveGiacenza giacenza42{u"42"_s, 2024};
const ChiaveSpedizione spedizione{u"MI"_s, u"0123"_s, 2023};

TEST(Avviso, statoPerGiacenza)
{
    EXPECT_EQ(istruzioni::statoAvviso(giacenza42),
              u"select GINRAV, GIDTAV, GIDES1 from giace00f where ginrgi='42' and giangi=2024;"_s);
}

TEST(Avviso, statoPerSpedizione)
{
    EXPECT_EQ(
        istruzioni::statoAvviso(spedizione),
        u"select GINRAV, GIDTAV from giace00f where gifili='MI' and ginrlv='0123' and gianlv='2023';"_s);
}

TEST(Avviso, primoPerGiacenza)
{
    EXPECT_EQ(istruzioni::primoAvviso(giacenza42, oggi),
              u"UPDATE giace00f SET GINRAV='1', GIDTAV='2024-03-05' WHERE GINRGI='42' AND GIANGI=2024;"_s);
}

TEST(Avviso, primoPerSpedizione)
{
    EXPECT_EQ(istruzioni::primoAvviso(spedizione, oggi),
              u"UPDATE giace00f SET GINRAV='1', GIDTAV='2024-03-05' WHERE GIFILI='MI' AND GINRLV='0123' AND "
              "GIANLV=2023;"_s);
}

TEST(Avviso, successivoPerGiacenza)
{
    EXPECT_EQ(
        istruzioni::avvisoSuccessivo(giacenza42, 4, oggi, u"05/03/2024 - chiuso\r\nl''atrio"_s),
        u"UPDATE giace00f SET GINRAV='4', GIDTAV='2024-03-05', GIDES1='05/03/2024 - chiuso\r\nl''atrio' "
        "WHERE GINRGI='42' AND GIANGI=2024;"_s);
}

TEST(Avviso, successivoConDueApostrofiNonParte)
{
    const QString descrizione = RaddoppiaApice(u"l'atrio dell'arrivo"_s);
    EXPECT_THROW(istruzioni::avvisoSuccessivo(giacenza42, 4, oggi, descrizione), ErroreDatabase);
}

TEST(Avviso, successivoPerSpedizione)
{
    EXPECT_EQ(
        istruzioni::avvisoSuccessivo(spedizione, 32767, oggi),
        u"UPDATE giace00f SET GINRAV='32767', GIDTAV='2024-03-05' WHERE GIFILI='MI' AND GINRLV='0123' AND "
        "GIANLV=2023;"_s);
}

TEST(Avviso, istruzioni)
{
    EXPECT_EQ(istruzioni::istruzioniAvviso(), u"Select IstrSuAvvGiac from ekelvorqzt_tabge00f;"_s);
}

TEST(BuonFine, dataPerGiacenza)
{
    EXPECT_EQ(istruzioni::dataBuonFine(giacenza42),
              u"select GIDTBF from giace00f WHERE GINRGI='42' AND GIANGI=2024;"_s);
}

TEST(BuonFine, dataPerSpedizione)
{
    EXPECT_EQ(istruzioni::dataBuonFine(spedizione),
              u"select GIDTBF from giace00f where gifili='MI' and ginrlv='0123' and gianlv='2023';"_s);
}

TEST(BuonFine, chiusura)
{
    EXPECT_EQ(istruzioni::chiusura(giacenza42, oggi, u"12"_s),
              u"UPDATE giace00f SET GIDTBF='2024-03-05', GIGGSO=12 WHERE GINRGI='42' AND GIANGI=2024;"_s);
}

TEST(BuonFine, chiusuraRipetuta)
{
    EXPECT_EQ(istruzioni::chiusuraRipetuta(giacenza42, u"-3"_s),
              u"UPDATE giace00f SET GIGGSO=-3 WHERE GINRGI='42' AND GIANGI=2024;"_s);
}

TEST(BuonFine, giorniCheNonSonoUnNumero)
{
    for (const QString& giorni : {QString(), u"dodici"_s, u"12 giorni"_s, u"1, GIIMGI=0"_s}) {
        EXPECT_THROW(istruzioni::chiusura(giacenza42, oggi, giorni), ErroreDatabase);
        EXPECT_THROW(istruzioni::chiusuraRipetuta(giacenza42, giorni), ErroreDatabase);
    }
}

TEST(Costi, condizioniPerAnno)
{
    EXPECT_EQ(istruzioni::condizioniFatturazione(u"0123"_s, 2023),
              u"SELECT tabfatturazione.* from (tabfatturazione inner JOIN letve00f  on facodi=lecodi and "
              "facmpe=lecmpe) where falcod='C' and lenrlv='0123' and leanlv='2023';"_s);
}

TEST(Costi, condizioniPerData)
{
    EXPECT_EQ(istruzioni::condizioniFatturazione(u"0123"_s, QDate(2023, 12, 30)),
              u"SELECT tabfatturazione.* from (tabfatturazione inner JOIN letve00f  on facodi=lecodi and "
              "facmpe=lecmpe) where falcod='C' and lenrlv='0123' and ledtlv='2023-12-30';"_s);
}

TEST(Costi, salva)
{
    EXPECT_EQ(
        istruzioni::salvaCosti(spedizione, Decimale(u"7.5"_s), Decimale(u"15"_s)),
        u"update Giace00f set  FissoGiacenza=7.50, GIIMGI=15.00 where GIFILI='MI' and GINRLV='0123' and "
        "gianlv=2023;"_s);
}

TEST(Costi, cheNonSonoNumeri)
{
    EXPECT_THROW(Decimale(QString{}), ErroreConversione);
    EXPECT_THROW(Decimale(u"15;"_s), ErroreConversione);
}

TEST(Riconsegna, riconsegne)
{
    EXPECT_EQ(istruzioni::riconsegne(giacenza42),
              u"SELECT letve00f.*, giace00f.* from letve00f INNER JOIN giace00f ON lerfgi=ginrgi and "
              "leangi=giangi WHERE ginrgi='42' and giangi=2024;"_s);
}

} // namespace
