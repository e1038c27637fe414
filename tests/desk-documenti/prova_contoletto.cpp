#include "depositodesk.h"

#include "data/chiusura.h"
#include "desk/documenti/contoletto.h"
#include "desk/documenti/foglioconto.h"
#include "desk/documenti/salvati.h"

using namespace giacenza;
using namespace giacenza::documenti;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::HasSubstr;

namespace {

class ContoLetto : public DepositoDesk
{};

INSTANTIATE_TEST_SUITE_P(Basi, ContoLetto, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(ContoLetto, DiUnCasoAperto)
{
    Connessione connessione = mBase.connessione();
    const DatiConto dati = leggiDatiConto(connessione, mAperta);
    EXPECT_EQ(dati.ldv.numero, u"4711"_s);
    EXPECT_EQ(dati.ragioneSociale, u"Ferramenta Lombarda S.r.l."_s);
    EXPECT_EQ(dati.destinatario, u"Utensileria del Lago"_s);
    EXPECT_EQ(dati.dal, QDate(2026, 11, 1));
    EXPECT_FALSE(dati.buonFine);
    EXPECT_FALSE(dati.sostaScritta);
    const Conto conto = calcolaConto(dati, mOggi);
    EXPECT_EQ(conto.giorni, 21);
    ASSERT_TRUE(conto.importi);
    EXPECT_EQ(conto.importi->totale, u"29.00"_s);
    EXPECT_EQ(condizioniInParole(dati.condizioni),
              u"giorni franchi 5, al giorno 1,50 €, minimo 15,00 €, fisso 5,00 €"_s);
}

/// What the sheet says is what the closure of that day writes, read back.
TEST_P(ContoLetto, EQuelloCheLaChiusuraScrive)
{
    Connessione connessione = mBase.connessione();
    const Conto conto = calcolaConto(leggiDatiConto(connessione, mAperta), mOggi);
    connessione.esegui(istruzioni::chiusura(mAperta, mOggi, QString::number(conto.giorni)));
    const auto importi =
        calcolaImporti(*leggiCondizioni(connessione, u"4711"_s, 2026), QString::number(conto.giorni));
    connessione.esegui(
        istruzioni::salvaCosti(ChiaveSpedizione{u"MI"_s, u"4711"_s, 2026}, importi.fisso, importi.sosta));
    const DatiConto dopo = leggiDatiConto(connessione, mAperta);
    EXPECT_EQ(comeScritto(*dopo.sostaScritta), conto.importi->sosta);
    EXPECT_EQ(comeScritto(*dopo.fissoScritto), conto.importi->fisso);
    EXPECT_THAT(
        calcolaConto(dopo, mOggi.addDays(30)).avvertenze,
        ElementsAre(u"Sulla giacenza sono già scritti sosta 24,00 € e fisso 5,00 €: addebitarli di nuovo "
                    "sarebbe la seconda volta."_s));
}

TEST_P(ContoLetto, DiUnCasoFatturato)
{
    Connessione connessione = mBase.connessione();
    const Conto conto = calcolaConto(leggiDatiConto(connessione, mChiusa), mOggi);
    EXPECT_EQ(conto.giorni, 5);
    EXPECT_EQ(conto.importi->totale, u"5.00"_s);
    ASSERT_EQ(conto.avvertenze.size(), 4);
    EXPECT_THAT(conto.avvertenze[0].toStdString(), HasSubstr("fattura n. 77 del 20/11/2026"));
    EXPECT_EQ(conto.avvertenze[1], u"Sulla giacenza sono già scritti sosta 15,00 € e fisso niente."_s);
    EXPECT_THAT(conto.avvertenze[3].toStdString(), HasSubstr("n. 39 del 02/10/2026"));
}

TEST_P(ContoLetto, SenzaCondizioniESenzaCaso)
{
    Connessione connessione = mBase.connessione();
    const Conto conto = calcolaConto(leggiDatiConto(connessione, {u"43"_s, 2026}), mOggi);
    EXPECT_FALSE(conto.importi);
    EXPECT_THAT(conto.mancante.toStdString(), HasSubstr("Il cliente 1002 non ha condizioni"));
    EXPECT_THROW(leggiDatiConto(connessione, {u"999"_s, 2026}), Errore);
}

TEST_P(ContoLetto, LaPaginaCheVaColBuonFine)
{
    Connessione connessione = mBase.connessione();
    const Conto conto = calcolaConto(leggiDatiConto(connessione, mAperta), mOggi.addDays(200));
    const auto documento = documentoConto(conto, carta(), mOggi);
    EXPECT_EQ(documento->pagine(), 1);
    EXPECT_GT(documentoConto(conto, carta(), mOggi, true)->pagine(), 3);
    const QString file = salvaPdf(*documento, nomeConto(mAperta), carta());
    EXPECT_THAT(salvati(), ElementsAre(u"Conto della sosta 42-2026.pdf"_s));
    const QString testo = testoPdf(file).simplified();
    for (const QString& atteso :
         {u"Trasporti Prova"_s, u"Conto della sosta"_s, u"Giacenza n. 42 / 2026 — fatto il 22/11/2026"_s,
          u"1001 Ferramenta Lombarda S.r.l."_s,
          u"giorni franchi 5, al giorno 1,50 €, minimo 15,00 €, fisso 5,00 €"_s,
          u"02/11/2026 06/11/2026 5 senza addebito 0,00 € 0,00 €"_s, u"Sosta, 221 giorni 324,00 €"_s,
          u"Totale al 10/06/2027 329,00 €"_s, u"P. IVA 01234567890"_s})
        EXPECT_TRUE(testo.contains(atteso)) << atteso.toStdString() << "\n" << testo.toStdString();
}

} // namespace
