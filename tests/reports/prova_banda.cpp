#include "reports/engine/banda.h"

#include "support/stampa.h"

#include <gmock/gmock.h>

using namespace giacenza;
using namespace giacenza::report;
using namespace Qt::StringLiterals;

namespace {

Controllo testoFisso(const QString& nome, const QRectF& area, const QString& testo,
                     Altezza altezza = Altezza::fissa)
{
    Controllo controllo = etichetta(nome, area, testo);
    controllo.altezza = altezza;
    return controllo;
}

class BandaComposta : public testing::Test
{
protected:
    Banda componi(const QImage& logo = {}, double riduzione = 1)
    {
        const TestiSezione testi =
            testiDi(mSezione, [](const Controllo& controllo) { return controllo.testo; });
        return componiBanda(mSezione, testi, logo, mMisuratore, riduzione);
    }

    static QList<TestoPagina> righe(const Banda& banda, const QString& controllo)
    {
        QList<TestoPagina> righe;
        for (const Primitiva& primitiva : banda.primitive) {
            const auto* testo = std::get_if<TestoPagina>(&primitiva);
            if (testo && testo->controllo == controllo)
                righe << *testo;
        }
        return righe;
    }

    static QStringList testi(const Banda& banda, const QString& controllo)
    {
        QStringList testi;
        for (const TestoPagina& riga : righe(banda, controllo))
            testi << riga.testo;
        return testi;
    }

    Sezione mSezione{u"Dettaglio"_s, 40, {}};
    Misuratore mMisuratore;
};

const QString lungo =
    u"La merce è ferma in deposito perché il destinatario era assente e non ha lasciato istruzioni"_s;

TEST_F(BandaComposta, unTestoCheNonCiStaFinisceInPuntini)
{
    mSezione.controlli = {testoFisso(u"txt"_s, {10, 5, 40, 5}, lungo)};
    const Banda banda = componi();
    const auto scritte = righe(banda, u"txt"_s);
    ASSERT_EQ(scritte.size(), 1);
    EXPECT_TRUE(scritte[0].testo.startsWith(u"La merce è"_s));
    EXPECT_TRUE(scritte[0].testo.endsWith(u'…'));
    EXPECT_LE(scritte[0].area.right(), 50.01);
    EXPECT_EQ(banda.altezza, 40);
}

TEST_F(BandaComposta, unTestoCheCresceTieneTutteLeParoleESpinge)
{
    mSezione.controlli = {testoFisso(u"txt"_s, {10, 5, 40, 5}, lungo, Altezza::cresce),
                          testoFisso(u"sotto"_s, {10, 12, 40, 5}, u"Sotto"_s)};
    const Banda banda = componi();
    EXPECT_GT(testi(banda, u"txt"_s).size(), 2);
    EXPECT_EQ(testi(banda, u"txt"_s).join(u' '), lungo);
    const double fondo = righe(banda, u"txt"_s).constLast().area.bottom();
    EXPECT_NEAR(righe(banda, u"sotto"_s)[0].area.top(), fondo + 2, 0.001);
    EXPECT_NEAR(banda.altezza, 40 + fondo - 10, 0.001);
}

TEST_F(BandaComposta, ogniFineRigaValeEIControlliNo)
{
    mSezione.controlli = {testoFisso(u"txt"_s, {0, 0, 100, 5},
                                     u"uno\r\ndue\rtre\n\nquattro\tcinque\u0007\r\n"_s, Altezza::cresce)};
    const Banda banda = componi();
    EXPECT_EQ(testi(banda, u"txt"_s), (QStringList{u"uno"_s, u"due"_s, u"tre"_s, u"quattro cinque"_s}));
    const auto scritte = righe(banda, u"txt"_s);
    const double passo = scritte[1].area.top() - scritte[0].area.top();
    EXPECT_NEAR(scritte[3].area.top() - scritte[2].area.top(), 2 * passo, 0.001);
}

TEST_F(BandaComposta, unaParolaPiuLargaDelCampoVaACapo)
{
    mSezione.controlli = {testoFisso(u"txt"_s, {0, 0, 30, 5}, QString(80, u'M'), Altezza::cresce)};
    const auto scritte = righe(componi(), u"txt"_s);
    EXPECT_GT(scritte.size(), 5);
    for (const TestoPagina& riga : scritte)
        EXPECT_LE(riga.area.width(), 30.01);
}

TEST_F(BandaComposta, ilVuotoElasticoSiChiudeIlNascostoNo)
{
    mSezione.controlli = {testoFisso(u"uno"_s, {0, 0, 50, 5}, {}, Altezza::elastica),
                          testoFisso(u"due"_s, {0, 5, 50, 5}, u"due"_s)};
    EXPECT_EQ(righe(componi(), u"due"_s)[0].area.top(), 0);
    EXPECT_EQ(componi().altezza, 35);

    mSezione.controlli[0].testo = lungo + lungo + lungo;
    mSezione.controlli[0].visibile = false;
    EXPECT_TRUE(righe(componi(), u"uno"_s).isEmpty());
    EXPECT_EQ(righe(componi(), u"due"_s)[0].area.top(), 5);
    EXPECT_EQ(componi().altezza, 40);
}

TEST_F(BandaComposta, ilTitoloSparisceColSuoCampo)
{
    Controllo titolo = testoFisso(u"lbl"_s, {0, 0, 50, 5}, u"Titolo"_s);
    titolo.con = {u"txt"_s};
    Controllo filo = cornice(u"lin"_s, {0, 5, 50, 0}, nero);
    filo.con = {u"txt"_s};
    mSezione.controlli = {titolo, filo, testoFisso(u"txt"_s, {0, 5, 50, 5}, {}, Altezza::elastica),
                          testoFisso(u"sotto"_s, {0, 12, 50, 5}, u"sotto"_s)};
    EXPECT_EQ(componi().primitive.size(), 1U);
    EXPECT_EQ(righe(componi(), u"sotto"_s)[0].area.top(), 2);

    mSezione.controlli[2].testo = u"testo"_s;
    EXPECT_EQ(componi().primitive.size(), 4U);
}

TEST_F(BandaComposta, ilTitoloDiPiuCampiSparisceConLUltimo)
{
    Controllo titolo = testoFisso(u"lbl"_s, {0, 0, 50, 5}, u"Titolo"_s);
    titolo.con = {u"uno"_s, u"due"_s};
    mSezione.controlli = {titolo, testoFisso(u"uno"_s, {0, 5, 50, 5}, {}, Altezza::elastica),
                          testoFisso(u"due"_s, {0, 10, 50, 5}, u"due"_s, Altezza::elastica)};
    EXPECT_EQ(testi(componi(), u"lbl"_s), QStringList{u"Titolo"_s});
    mSezione.controlli[2].testo.clear();
    EXPECT_TRUE(componi().primitive.empty());
    mSezione.controlli[1].visibile = false;
    EXPECT_EQ(testi(componi(), u"lbl"_s), QStringList{u"Titolo"_s}) << "a hidden field leaves its label";
}

TEST_F(BandaComposta, entroUnLimiteSiRiduceEPoiSiTaglia)
{
    mSezione = {u"Finestra"_s,
                10,
                {testoFisso(u"a"_s, {0, 0, 50, 5}, lungo, Altezza::elastica),
                 testoFisso(u"b"_s, {0, 5, 50, 5}, u"b"_s, Altezza::elastica)}};
    for (Controllo& controllo : mSezione.controlli)
        controllo.riducibile = true;
    const auto entro = [&](double altezza) {
        const TestiSezione testi =
            testiDi(mSezione, [](const Controllo& controllo) { return controllo.testo; });
        return componiEntro(mSezione, testi, {}, mMisuratore, {altezza, 0.6});
    };
    EXPECT_EQ(righe(entro(100), u"a"_s)[0].carattere.punti, 10);
    const Banda ridotta = entro(13);
    EXPECT_LE(ridotta.altezza, 13);
    EXPECT_LT(righe(ridotta, u"a"_s)[0].carattere.punti, 10);
    EXPECT_EQ(testi(ridotta, u"a"_s).join(u' '), lungo);
    const Banda tagliata = entro(10);
    EXPECT_EQ(tagliata.altezza, 10);
    EXPECT_TRUE(testi(tagliata, u"a"_s).back().endsWith(u"…"_s));
}

TEST_F(BandaComposta, ilTitoloRestaConLaPrimaRiga)
{
    Controllo titolo = testoFisso(u"lbl"_s, {0, 0, 50, 5}, u"Titolo"_s);
    titolo.con = {u"txt"_s};
    mSezione.controlli = {titolo, testoFisso(u"txt"_s, {0, 10, 50, 5}, lungo, Altezza::cresce)};
    const Banda banda = componi();
    const double fineRiga = righe(banda, u"txt"_s)[0].area.bottom();
    EXPECT_TRUE(std::ranges::any_of(banda.blocco().uniti, [&](const Unito& unito) {
        return unito.da == 0 && std::abs(unito.a - fineRiga) < 0.001;
    }));
}

TEST_F(BandaComposta, allineamenti)
{
    mSezione.controlli = {testoFisso(u"s"_s, {10, 0, 60, 5}, u"Totale"_s),
                          testoFisso(u"c"_s, {10, 10, 60, 5}, u"Totale"_s),
                          testoFisso(u"d"_s, {10, 20, 60, 5}, u"Totale"_s)};
    mSezione.controlli[1].allineamento = Allineamento::centro;
    mSezione.controlli[2].allineamento = Allineamento::destra;
    const Banda banda = componi();
    EXPECT_NEAR(righe(banda, u"s"_s)[0].area.left(), 10, 0.001);
    EXPECT_NEAR(righe(banda, u"c"_s)[0].area.center().x(), 40, 0.001);
    EXPECT_NEAR(righe(banda, u"d"_s)[0].area.right(), 70, 0.001);
}

TEST_F(BandaComposta, soloIRiducibiliSiRiducono)
{
    mSezione.controlli = {testoFisso(u"uno"_s, {0, 0, 50, 5}, u"uno"_s),
                          testoFisso(u"due"_s, {0, 10, 50, 5}, u"due"_s)};
    mSezione.controlli[1].riducibile = true;
    const Banda banda = componi({}, 0.8);
    EXPECT_EQ(righe(banda, u"uno"_s)[0].carattere.punti, 10);
    EXPECT_EQ(righe(banda, u"due"_s)[0].carattere.punti, 8);
}

TEST_F(BandaComposta, ilLogoStaNelSuoRiquadroConLeSueProporzioni)
{
    Controllo logo = testoFisso(u"img"_s, {20, 0, 60, 20}, {}, Altezza::elastica);
    logo.genere = Genere::immagine;
    mSezione.controlli = {logo, testoFisso(u"sotto"_s, {20, 25, 50, 5}, u"sotto"_s)};
    QImage immagine(100, 100, QImage::Format_RGB32);
    immagine.fill(Qt::red);
    const Banda banda = componi(immagine);
    EXPECT_EQ(areaDi(banda.primitive[0]), QRectF(20, 0, 20, 20));
    EXPECT_EQ(righe(banda, u"sotto"_s)[0].area.top(), 25);

    const Banda senza = componi();
    EXPECT_EQ(senza.primitive.size(), 1U);
    EXPECT_EQ(righe(senza, u"sotto"_s)[0].area.top(), 5);
}

TEST(Testi, siChiedonoSoloQuelliCheSiVedono)
{
    Sezione sezione{u"Dettaglio"_s, 20, {campo(u"uno"_s, {}, u"A"_s), campo(u"due"_s, {}, u"B"_s)}};
    sezione.controlli[0].visibile = false;
    QStringList chiesti;
    const TestiSezione testi = testiDi(sezione, [&](const Controllo& controllo) {
        chiesti << controllo.nome;
        return u"x"_s;
    });
    EXPECT_EQ(chiesti, QStringList{u"due"_s});
    EXPECT_EQ(testi, (TestiSezione{QString(), u"x"_s}));
}

} // namespace
