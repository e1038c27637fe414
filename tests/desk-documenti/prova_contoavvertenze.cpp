#include "contodiprova.h"

#include "desk/documenti/foglioconto.h"

#include <gmock/gmock.h>

using namespace giacenza;
using namespace giacenza::documenti;
using namespace giacenza::prove;
using testing::ElementsAre;

namespace {

const QDate dopo(2026, 11, 17); // 16 days: 16.50 and 5.00

TEST(ContoMancante, SenzaCondizioniSiDiceENonSonoZeroEuro)
{
    DatiConto dati = datiDiProva();
    dati.condizioni.reset();
    const Conto conto = calcolaConto(dati, dopo);
    EXPECT_FALSE(conto.importi);
    EXPECT_EQ(conto.giorni, 16);
    EXPECT_EQ(conto.mancante,
              u"Il cliente 1001 non ha condizioni di fatturazione: gli importi non si possono calcolare."_s);
    EXPECT_EQ(condizioniInParole(dati.condizioni), u"il cliente non ne ha"_s);
}

TEST(ContoMancante, UnaCondizioneNullaSiDice)
{
    for (const auto& [campo, nome] : {std::pair{&CondizioniSosta::fisso, u"FADFGI"_s},
                                      std::pair{&CondizioniSosta::giorniFranchi, u"FAFRGI"_s},
                                      std::pair{&CondizioniSosta::alGiorno, u"FATGIG"_s},
                                      std::pair{&CondizioniSosta::minimo, u"FAMIGI"_s}}) {
        DatiConto dati = datiDiProva();
        (*dati.condizioni).*campo = std::nullopt;
        const Conto conto = calcolaConto(dati, dopo);
        EXPECT_FALSE(conto.importi);
        EXPECT_EQ(conto.mancante,
                  u"Le condizioni di fatturazione del cliente sono incomplete: manca %1."_s.arg(nome));
    }
}

TEST(ContoMancante, LaTariffaNonServeNeiGiorniFranchi)
{
    DatiConto dati = datiDiProva();
    dati.condizioni->alGiorno = std::nullopt;
    const Conto conto = calcolaConto(dati, QDate(2026, 11, 6));
    ASSERT_TRUE(conto.importi);
    EXPECT_EQ(conto.importi->totale, u"5.00"_s);
    EXPECT_EQ(condizioniInParole(dati.condizioni),
              u"giorni franchi 5, al giorno manca, minimo 15,00 €, fisso 5,00 €"_s);
}

TEST(ContoMancante, SenzaLaDataNonSiConta)
{
    DatiConto dati = datiDiProva();
    dati.dal.reset();
    const Conto conto = calcolaConto(dati, dopo);
    EXPECT_FALSE(conto.importi);
    EXPECT_EQ(conto.mancante, u"La giacenza non ha la data da cui contare i giorni."_s);
}

TEST(ContoMancante, PiuGiorniDiQuantiSeNePossanoAddebitare)
{
    DatiConto dati = datiDiProva();
    dati.dal = QDate(1900, 1, 1);
    const Conto conto = calcolaConto(dati, dopo);
    EXPECT_FALSE(conto.importi);
    EXPECT_TRUE(conto.righe.empty());
    EXPECT_EQ(conto.mancante, u"I giorni di sosta sono 46341, più di quanti se ne possano addebitare."_s);
}

TEST(ContoAvvertenze, GiaFatturata)
{
    DatiConto dati = datiDiProva();
    dati.fattura = u"77"_s;
    dati.dataFattura = QDate(2026, 11, 20);
    EXPECT_THAT(
        calcolaConto(dati, dopo).avvertenze,
        ElementsAre(u"Già fatturata: fattura n. 77 del 20/11/2026. Un altro addebito sarebbe il secondo."_s));
}

TEST(ContoAvvertenze, GiaScritta)
{
    DatiConto dati = datiDiProva();
    dati.sostaScritta = u"16.50"_s;
    dati.fissoScritto = u"5"_s;
    EXPECT_THAT(
        calcolaConto(dati, dopo).avvertenze,
        ElementsAre(u"Sulla giacenza sono già scritti sosta 16,50 € e fisso 5,00 €: addebitarli di nuovo "
                    "sarebbe la seconda volta."_s));
    dati.fissoScritto.reset();
    EXPECT_THAT(
        calcolaConto(dati, dopo).avvertenze,
        ElementsAre(u"Sulla giacenza sono già scritti sosta 16,50 € e fisso niente: addebitarli di nuovo "
                    "sarebbe la seconda volta."_s,
                    u"Gli importi scritti non sono quelli che si calcolano qui."_s));
}

TEST(ContoAvvertenze, SegueUnAltraGiacenza)
{
    DatiConto dati = datiDiProva();
    dati.precedente = u"39"_s;
    dati.dataPrecedente = QDate(2026, 10, 2);
    EXPECT_THAT(
        calcolaConto(dati, dopo).avvertenze,
        ElementsAre(u"Segue la giacenza n. 39 del 02/10/2026: guardare che gli stessi giorni non siano già "
                    "addebitati là."_s));
}

} // namespace
