#include "support/bancadati.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;

namespace {

class Chiavi : public testing::TestWithParam<std::string>
{
protected:
    BancaDati mBase{GetParam()};

    /// Empty when the database takes a statement, "doppia" when a key refuses it, else the error's text. The
    /// SQLite driver gives HY000 for a broken key too, so the kinds are told apart by number and words.
    QString esito(const QString& istruzione) const
    {
        constexpr int chiaveDoppia = 1062;
        try {
            mBase.esegui(istruzione);
        } catch (const ErroreDatabase& errore) {
            const bool doppia = errore.codiceNativo() == chiaveDoppia ||
                                errore.testo().contains(u"UNIQUE constraint failed"_s);
            return doppia ? u"doppia"_s : errore.testo();
        }
        return {};
    }

    QString spedizione(const QString& filiale, const QString& numero, int anno) const
    {
        return esito(u"insert into letve00f (lefili, lenrlv, leanlv, ledtlv, lecodi, lerife) "
                     "values ('%1', '%2', %3, '%3-02-01', 1001, 'Ddt 7/a');"_s.arg(filiale, numero)
                         .arg(anno));
    }

    QString giacenza(const QString& filiale, const QString& ldv, int annoLdv, const QString& numero,
                     int anno) const
    {
        return esito(u"insert into giace00f (GIFILI, GINRLV, GIANLV, GINRGI, GIANGI) "
                     "values ('%1', '%2', %3, '%4', %5);"_s.arg(filiale, ldv)
                         .arg(annoLdv)
                         .arg(numero)
                         .arg(anno));
    }

    QString quante(const QString& condizione) const
    {
        return mBase.leggi(u"select count(*) from letve00f where "_s + condizione).value_or(u"NULL"_s);
    }

    const QString mAccettata;
    const QString mDoppia = u"doppia"_s;
};

TEST_P(Chiavi, unaLetteraDiVetturaEUnaPerFilialeNumeroEAnno)
{
    EXPECT_EQ(spedizione(u"01"_s, u"123"_s, 2025), mAccettata);
    EXPECT_EQ(spedizione(u"01"_s, u"123"_s, 2025), mDoppia);
    EXPECT_EQ(spedizione(u"02"_s, u"123"_s, 2025), mAccettata);
    EXPECT_EQ(spedizione(u"01"_s, u"123"_s, 2026), mAccettata);
    EXPECT_EQ(spedizione(u"01"_s, u"124"_s, 2025), mAccettata);
}

TEST_P(Chiavi, ilNumeroEUnTestoConfrontatoCarattereDopoCarattere)
{
    EXPECT_EQ(spedizione(u"01"_s, u"123"_s, 2025), mAccettata);
    EXPECT_EQ(spedizione(u"01"_s, u"0123"_s, 2025), mAccettata);
    EXPECT_EQ(spedizione(u"01"_s, u"123 "_s, 2025), mAccettata);
    EXPECT_EQ(spedizione(u"01"_s, u"a1"_s, 2025), mAccettata);
    EXPECT_EQ(spedizione(u"01"_s, u"A1"_s, 2025), mAccettata);
    EXPECT_EQ(quante(u"lenrlv='123'"_s), u"1"_s);
    EXPECT_EQ(quante(u"lenrlv='A1'"_s), u"1"_s);
    EXPECT_EQ(quante(u"CAST(lenrlv as unsigned)=123"_s), u"3"_s);
}

TEST_P(Chiavi, riferimentiECodiciNonGuardanoLeMaiuscole)
{
    EXPECT_EQ(spedizione(u"mi"_s, u"1"_s, 2025), mAccettata);
    EXPECT_EQ(quante(u"lerife='DDT 7/A' and lefili='MI'"_s), u"1"_s);
    EXPECT_EQ(quante(u"lerife='DDT 7/A '"_s), u"0"_s) << "a blank more is another reference";
    EXPECT_EQ(spedizione(u"MI"_s, u"1"_s, 2025), mDoppia);
}

TEST_P(Chiavi, codiciEAnniSiScrivonoConESenzaApici)
{
    EXPECT_EQ(spedizione(u"01"_s, u"1"_s, 2025), mAccettata);
    EXPECT_EQ(quante(u"lecodi=1001 and leanlv=2025"_s), u"1"_s);
    EXPECT_EQ(quante(u"lecodi='1001' and leanlv>='2025'"_s), u"1"_s);
}

TEST_P(Chiavi, unaSpedizioneVaInGiacenzaUnaVolta)
{
    EXPECT_EQ(giacenza(u"01"_s, u"123"_s, 2025, u"7"_s, 2025), mAccettata);
    EXPECT_EQ(giacenza(u"01"_s, u"123"_s, 2025, u"8"_s, 2025), mDoppia);
    EXPECT_EQ(giacenza(u"02"_s, u"123"_s, 2025, u"9"_s, 2025), mAccettata);
}

TEST_P(Chiavi, unNumeroDiGiacenzaEUnoPerAnno)
{
    EXPECT_EQ(giacenza(u"01"_s, u"123"_s, 2025, u"7"_s, 2025), mAccettata);
    EXPECT_EQ(giacenza(u"01"_s, u"124"_s, 2025, u"7"_s, 2025), mDoppia);
    EXPECT_EQ(giacenza(u"01"_s, u"124"_s, 2025, u"7"_s, 2026), mAccettata);
    EXPECT_EQ(giacenza(u"01"_s, u"125"_s, 2025, u"07"_s, 2025), mAccettata);
}

TEST_P(Chiavi, leImpostazioniHannoUnaRigaSola)
{
    EXPECT_EQ(esito(u"insert into ekelvorqzt_tabge00f (UltimoNumGiacenza) values (0);"_s), mAccettata);
    EXPECT_EQ(esito(u"insert into ekelvorqzt_tabge00f (UltimoNumGiacenza) values (0);"_s), mDoppia);
    EXPECT_NE(esito(u"insert into ekelvorqzt_tabge00f (Riga, UltimoNumGiacenza) values (2, 0);"_s),
              mAccettata);
}

TEST_P(Chiavi, cioCheNonSiScriveRestaNullo)
{
    EXPECT_EQ(spedizione(u"01"_s, u"1"_s, 2025), mAccettata);
    EXPECT_EQ(giacenza(u"01"_s, u"1"_s, 2025, u"7"_s, 2025), mAccettata);
    EXPECT_EQ(
        quante(
            u"LERFGI is null and LEANGI is null and LEDTCO is null and lerico is null and leflbc is null"_s),
        u"1"_s);
    EXPECT_EQ(mBase.leggi(
                  u"select count(*) from giace00f where GIDTGI is null and GIGGSO is null and GINRAV is null "
                  "and GIDTAV is null and GIDTBF is null and GIIMGI is null and FissoGiacenza is null and "
                  "GIVNRG is null and GIVDTG is null and GIDES1 is null"_s),
              u"1"_s);
}

TEST_P(Chiavi, unaSpedizionePuoNominareChiNonCe)
{
    EXPECT_EQ(esito(u"insert into letve00f (lefili, lenrlv, leanlv, ledtlv, lecodi, lecdve, lelin1, leport) "
                    "values ('ZZ', '1', 2025, '2025-01-02', 999999, 'ignoto', 'nuova', 77000);"_s),
              mAccettata);
    EXPECT_EQ(giacenza(u"01"_s, u"mai vista"_s, 2025, u"7"_s, 2025), mAccettata);
}

INSTANTIATE_TEST_SUITE_P(Basi, Chiavi, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

} // namespace
