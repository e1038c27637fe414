// Closures that something interrupts, and what the screen shows while it waits.

#include "management/avvisodiprova.h"

#include "data/archivio.h"
#include "support/cadute.h"
#include "support/stampa.h"

#include <QGuiApplication>
#include <QLabel>

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class ChiusuraGuasti : public AvvisoDiProva
{};

INSTANTIATE_TEST_SUITE_P(Basi, ChiusuraGuasti, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

class ChiusuraInterrotta : public AvvisoDiProva
{};

INSTANTIATE_TEST_SUITE_P(Basi, ChiusuraInterrotta, testing::Values("mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(ChiusuraGuasti, LAttesaSiVedePrimaDiOgniIstruzione)
{
    richiamaAvvisato();
    QStringList senza;
    int viste = 0;
    impostaTraccia([&](EventoDati evento, const QString& testo) {
        if (evento != EventoDati::istruzione)
            return;
        ++viste;
        const QCursor* cursore = QGuiApplication::overrideCursor();
        if (mostrato("lblStato") != u"Attendo l'archivio…"_s || !cursore ||
            cursore->shape() != Qt::WaitCursor)
            senza << testo;
    });
    QString allaStampa;
    mDuranteStampa = [&] { allaStampa = mostrato("lblStato"); };
    clicca("cmdBuonFine");
    guarisce();
    EXPECT_GT(viste, 3);
    EXPECT_THAT(senza, IsEmpty());
    EXPECT_EQ(allaStampa, u"Attendo l'archivio…"_s) << "the letter reads it too";
    EXPECT_TRUE(mostrato("lblStato").startsWith(u"Giacenza 39_2026 chiusa"_s));
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);

    allaStampa.clear();
    clicca("cmdRistampa");
    EXPECT_EQ(allaStampa, u"Attendo l'archivio…"_s);
}

TEST_P(ChiusuraGuasti, NessunaPressioneFinisceSenzaUnaParola)
{
    richiamaAvvisato();
    const QString prima = tutto(u"39"_s);
    fallisce(u"select GIDTBF"_s, u"08S01"_s);
    clicca("cmdBuonFine");
    guarisce();
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(Messaggio{u"Operazione non riuscita: il database o un suo dato non risponde come "
                                      "dovrebbe.\n\nLa connessione con l'archivio è caduta."_s,
                                      Stile::critico, titoloApplicazione()}));
    EXPECT_EQ(mostrato("lblStato"), u"La connessione con l'archivio è caduta."_s);
    EXPECT_EQ(c("lblStato")->toolTip(), u"guasto di prova"_s);
    EXPECT_EQ(tutto(u"39"_s), prima);
    EXPECT_THAT(mStampe, IsEmpty());
    clicca("cmdBuonFine");
    EXPECT_EQ(caso(u"GIDTBF"_s, u"39"_s), u"2026-11-21"_s) << "and then it works";
}

TEST_P(ChiusuraInterrotta, UnaSessioneMortaNonCostaLaPressione)
{
    richiamaAvvisato();
    EXPECT_GT(interrompi(mBase), 0);
    clicca("cmdBuonFine");
    EXPECT_THAT(mMessaggi.testi(), IsEmpty());
    EXPECT_EQ(caso(u"GIDTBF"_s, u"39"_s), u"2026-11-21"_s);
    EXPECT_TRUE(mostrato("lblStato").startsWith(u"Giacenza 39_2026 chiusa"_s));
    EXPECT_EQ(mStampe.filter(u"documento 39_2026"_s).size(), 1);
}

} // namespace
