// How the notice fills its pages, and how long it takes.

#include "reports/avvisodiprova.h"

#include <QPainter>

using namespace giacenza;
using namespace giacenza::report;
using namespace giacenza::report::prove;
using namespace Qt::StringLiterals;

namespace {

class AvvisoPagine : public AvvisoDiProva
{};

INSTANTIATE_TEST_SUITE_P(Basi, AvvisoPagine, testing::Values("sqlite", "mariadb"),
                         giacenza::prove::nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(AvvisoPagine, didascalieVuoteNonLascianoBuchi)
{
    mRichiesta.didascalie = {QString(), u"Solo questa"_s, QString(), QString()};
    const PaginaReport p = pagina();
    EXPECT_NEAR(diGenere<TestoPagina>(p, u"lblBord2"_s).at(0).area.top(), 12.8, 0.01);
    mRichiesta.didascalie = {};
    const double filo = areaDi(pagina().front()).top();
    EXPECT_LT(filo, 23);
}

TEST_P(AvvisoPagine, descrizioneLungaSuUnaPaginaFinCheSiPuo)
{
    const QString riga = u"12/03/2015 - destinatario assente, citofono muto, nessuna risposta al telefono"_s;
    esegui(u"update giace00f set GIDES1='%1'"_s.arg(QStringList(13, riga).join(u"\r\n"_s)));
    const auto documento = componi();
    EXPECT_EQ(documento->pagine(), 1);
    const auto righe = diGenere<TestoPagina>(documento->pagina(0), u"txtDescrizione"_s);
    EXPECT_EQ(righe.size(), 13U);
    EXPECT_LT(righe[0].carattere.punti, 10);
    EXPECT_GE(righe[0].carattere.punti, 8);
    aspettaOrdinata(documento->pagina(0));
}

TEST_P(AvvisoPagine, descrizioneLunghissimaContinuaENonPerdeRighe)
{
    QStringList righe;
    for (int i = 1; i <= 120; ++i)
        righe << u"Riga %1"_s.arg(i);
    esegui(u"update giace00f set GIDES1='%1'"_s.arg(righe.join(u"\r\n"_s)));
    const auto documento = componi();
    ASSERT_EQ(documento->pagine(), 4);
    QStringList lette;
    for (int i = 0; i < documento->pagine(); ++i) {
        const PaginaReport& p = documento->pagina(i);
        for (const TestoPagina& riga : diGenere<TestoPagina>(p, u"txtDescrizione"_s))
            lette << riga.testo;
        EXPECT_EQ(testo(p, u"lblPagina"_s), u"Pagina %1 di 4"_s.arg(i + 1));
        EXPECT_EQ(testo(p, u"lblBord1"_s), u"Trasporti del Ponte S.r.l."_s);
        aspettaOrdinata(p);
    }
    EXPECT_EQ(lette, righe);
    EXPECT_EQ(diGenere<TestoPagina>(documento->pagina(0), u"txtDescrizione"_s).at(0).carattere.punti, 10);
}

TEST_P(AvvisoPagine, valoriLunghiNonSiCoprono)
{
    esegui(u"update letve00f set ledest='%1', leindd='%1', lelocd='%2', lenatu='%2', lerife='%2'"_s.arg(
        QString(80, u'W'), QString(60, u'M')));
    esegui(u"update clien set RagioneSociale='%1', Indirizzo='%1'"_s.arg(QString(80, u'W')));
    mRichiesta.didascalie = {QString(120, u'W'), QString(200, u'w'), QString(200, u'w'), QString(200, u'w')};
    const auto documento = componi();
    for (int i = 0; i < documento->pagine(); ++i)
        aspettaOrdinata(documento->pagina(i));
}

TEST_P(AvvisoPagine, loStampareLungoSiPuoAnnullare)
{
    mAvviso.setCronometro([] { return [secondi = 0]() mutable { return secondi += 15; }; });
    mRegistro.rispondi(Risposta::si);
    EXPECT_EQ(componi(), nullptr);
    EXPECT_EQ(mRegistro.testi(),
              QStringList{u"Sono trascorsi circa 30 secondi dall'inizio dell'operazione di "
                          "stampa\rAnnullare l'operazione?"_s});
}

TEST_P(AvvisoPagine, laSecondaStampaContaDaZero)
{
    int secondi = 0;
    mAvviso.setCronometro([&] {
        secondi = 0;
        return [&] { return secondi; };
    });
    const auto documento = mAvviso.componi(mRichiesta, mOggi, nullptr);
    ASSERT_TRUE(documento);
    QImage carta(210, 297, QImage::Format_RGB32);
    QPainter pittore(&carta);
    const auto stampa = [&](int durata) {
        for (secondi = 0; secondi <= durata; ++secondi)
            EXPECT_TRUE(documento->dipingi(0, pittore));
    };
    const auto domanda = [](int quando) {
        return u"Sono trascorsi circa %1 secondi dall'inizio dell'operazione di "
               "stampa\rAnnullare l'operazione?"_s.arg(quando);
    };
    for (int i = 0; i < 3; ++i)
        mRegistro.rispondi(Risposta::no);
    stampa(45);
    documento->ricomincia();
    EXPECT_EQ(secondi, 0) << "un cronometro nuovo";
    stampa(25);
    EXPECT_EQ(mRegistro.testi(), (QStringList{domanda(20), domanda(40), domanda(20)}));
}

} // namespace
