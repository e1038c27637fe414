#include "data/archivio.h"
#include "desk/deskdiprova.h"
#include "desk/finestra/finestrainvio.h"
#include "support/albero.h"
#include "support/modale.h"

#include <QPushButton>

using namespace giacenza;
using namespace giacenza::desk;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int pazienza = 20'000;
constexpr int colonnaEsito = 3;

class ProvaInvio : public DeskDiProva
{
protected:
    void segnaTutte()
    {
        // Without a window manager nobody gives the window its focus back when a dialog over it has closed.
        mFinestra->activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(mFinestra.get()));
        elenco()->setFocus();
        elenco()->selectAll();
    }
    static void conferma(FinestraInvio& finestra)
    {
        QTest::keyClick(&finestra, Qt::Key_Return, Qt::ControlModifier);
    }
    static void finisci(const FinestraInvio& finestra)
    {
        ASSERT_TRUE(QTest::qWaitFor(
            [&] { return trova<QPushButton>(finestra, u"cmdChiudi"_s)->text() == u"&Chiudi"_s; }, pazienza));
    }
    static QString testo(const FinestraInvio& finestra)
    {
        return trova<QLabel>(finestra, u"lblInvio"_s)->text();
    }
    static QStringList esiti(const FinestraInvio& finestra)
    {
        return colonna(trova<QTableView>(finestra, u"tabInvio"_s), colonnaEsito);
    }
    /// Presses the keys of the notices, sees to the dialog, and waits for the list.
    void invia(const std::function<void(FinestraInvio&)>& azione, Qt::Key tasto = Qt::Key_N)
    {
        const QuandoAperta<FinestraInvio> intanto(azione);
        premi(tasto, Qt::ControlModifier);
        attendiElenco();
    }
    QString avvisi() const
    {
        QStringList tutti;
        for (const QStringList& riga :
             mBase.righe(u"select GINRGI, GINRAV from giace00f where GIDTAV='2026-11-20' order by GINRGI"_s))
            tutti << riga.join(u':');
        return tutti.join(u' ');
    }
};

} // namespace

TEST_P(ProvaInvio, primaSiVedeQuantiEAChiPoiCheNeEStato)
{
    mBase.esegui(u"update giace00f set GINRAV='1', GIDTAV='2026-11-20' where GINRGI='43'"_s);
    premi(Qt::Key_F5);
    attendiElenco();
    segnaTutte();
    invia([&](FinestraInvio& finestra) {
        EXPECT_EQ(testo(finestra),
                  u"4 avvisi a 2 clienti. Le descrizioni restano come sono. Una giacenza già avvisata "
                  "oggi resta fuori."_s);
        EXPECT_THAT(esiti(finestra), testing::Contains(u"lasciata fuori: avvisata oggi"_s).Times(1));
        const AlberoAccessibile albero = alberoAccessibile(&finestra);
        EXPECT_THAT(albero.senzaNome, IsEmpty());
        conferma(finestra);
        finisci(finestra);
        EXPECT_EQ(testo(finestra), u"4 avvisi prodotti, 1 lasciato fuori."_s);
        EXPECT_THAT(esiti(finestra),
                    testing::IsSupersetOf({u"✓ avviso n. 1"_s, u"✓ avviso n. 3"_s, u"✓ avviso n. 2"_s}));
        QTest::keyClick(&finestra, Qt::Key_Escape);
    });
    EXPECT_EQ(avvisi(), u"41:1 42:3 43:1 44:2 45:2"_s);
    EXPECT_EQ(mStampate.size(), 4);
    EXPECT_EQ(mBase.leggi(u"select GIDES1 from giace00f where GINRGI='45'"_s), u"L'imballo e l'etichetta"_s);
}

TEST_P(ProvaInvio, ripeteteNonFannoNulla)
{
    segnaTutte();
    invia([&](FinestraInvio& finestra) {
        conferma(finestra);
        finisci(finestra);
        QTest::keyClick(&finestra, Qt::Key_Escape);
    });
    const QString prima = avvisi();
    segnaTutte();
    invia([&](FinestraInvio& finestra) {
        EXPECT_EQ(testo(finestra), u"Non c'è nessun avviso da emettere: oggi sono già stati emessi."_s);
        EXPECT_FALSE(trova<QPushButton>(finestra, u"cmdEmetti"_s)->isEnabled());
        QTest::keyClick(&finestra, Qt::Key_Escape);
    });
    EXPECT_EQ(avvisi(), prima);
    EXPECT_EQ(mStampate.size(), 5);
}

TEST_P(ProvaInvio, annullareNonFaNulla)
{
    segnaTutte();
    invia([](FinestraInvio& finestra) { QTest::keyClick(&finestra, Qt::Key_Escape); });
    EXPECT_EQ(avvisi(), QString());
    EXPECT_THAT(mStampate, IsEmpty());
}

TEST_P(ProvaInvio, unaScansioneNonEmetteNulla)
{
    segnaTutte();
    invia([&](FinestraInvio& finestra) {
        const auto* tabella = trova<QTableView>(finestra, u"tabInvio"_s);
        EXPECT_TRUE(tabella->hasFocus());
        for (int volta = 0; volta < 2; ++volta) {
            digita(volta == 0 ? u"N4 2e"_s : u"N42e"_s); // a blank presses the button that Tab has gone to
            premi(Qt::Key_Return);
            premi(Qt::Key_Enter);
            premi(Qt::Key_Tab);
        }
        QCoreApplication::processEvents();
        EXPECT_FALSE(finestra.cominciato());
        EXPECT_TRUE(finestra.isVisible()) << "nor is it closed";
        EXPECT_EQ(tabella->currentIndex().row(), 0);
        EXPECT_EQ(trova<QLabel>(finestra, u"lblRiga"_s)->text(), u"42/2026: si conta e si stampa"_s);
        QTest::keyClick(&finestra, Qt::Key_Escape);
    });
    EXPECT_EQ(avvisi(), QString());
    EXPECT_THAT(mStampate, IsEmpty());
}

TEST_P(ProvaInvio, siConfermaConAltELaSuaLettera)
{
    segnaTutte();
    invia([&](FinestraInvio& finestra) {
        EXPECT_EQ(trova<QPushButton>(finestra, u"cmdEmetti"_s)->text(), u"&Emetti (Ctrl+Invio)"_s);
        QTest::keyClick(&finestra, Qt::Key_E, Qt::AltModifier);
        finisci(finestra);
        digita(u"42"_s);
        premi(Qt::Key_Return);
        EXPECT_TRUE(finestra.isVisible()) << "what came of it is not scanned away";
        QTest::keyClick(&finestra, Qt::Key_Escape);
    });
    EXPECT_EQ(mStampate.size(), 5);
}

TEST_P(ProvaInvio, siInterrompeTraUnaELAltra)
{
    segnaTutte();
    invia([&](FinestraInvio& finestra) {
        auto* modello = trova<QTableView>(finestra, u"tabInvio"_s)->model();
        QObject::connect(modello, &QAbstractItemModel::dataChanged, &finestra, [&] {
            if (mStampate.size() == 2)
                finestra.reject();
        });
        conferma(finestra);
        finisci(finestra);
        EXPECT_EQ(testo(finestra), u"2 avvisi prodotti, 3 non cominciati: interrotto."_s);
        EXPECT_THAT(esiti(finestra), testing::Contains(u"non cominciata"_s).Times(3));
        QTest::keyClick(&finestra, Qt::Key_Escape);
    });
    EXPECT_EQ(mStampate.size(), 2);
}

TEST_P(ProvaInvio, chiDiceDiNoNonFermaGliAltri)
{
    segnaTutte();
    mBase.esegui(u"update giace00f set GIDTBF='2026-11-20' where GINRGI='41'"_s);
    mRifiutata = u"44_2026"_s;
    invia([&](FinestraInvio& finestra) {
        conferma(finestra);
        finisci(finestra);
        EXPECT_EQ(testo(finestra),
                  u"3 avvisi prodotti, 1 rifiutato, 1 contato e non stampato: ristamparlo con Ctrl+P."_s);
        EXPECT_THAT(esiti(finestra),
                    testing::IsSupersetOf({u"✗ rifiutata: chiusa il 20/11/2026"_s,
                                           u"⚠ avviso n. 2, non stampato: La stampante è spenta."_s}));
        const auto* riga = trova<QLabel>(finestra, u"lblRiga"_s);
        EXPECT_EQ(riga->text(), u"41/2026: ✗ rifiutata: chiusa il 20/11/2026"_s) << "the first that failed";
        EXPECT_EQ(riga->accessibleName(), u"Giacenza 41/2026: ✗ rifiutata: chiusa il 20/11/2026"_s);
        EXPECT_TRUE(riga->wordWrap());
        premi(Qt::Key_Down);
        EXPECT_EQ(riga->text(), u"44/2026: ⚠ avviso n. 2, non stampato: La stampante è spenta."_s);
        QTest::keyClick(&finestra, Qt::Key_Escape);
    });
}

TEST_P(ProvaInvio, unArchivioCheNonRispondeFermaIlResto)
{
    segnaTutte();
    int guardate = 0;
    const Traccia vecchia = impostaTraccia([&](EventoDati evento, const QString& testo) {
        if (evento == EventoDati::istruzione && testo.startsWith(u"select GIDTBF from"_s) && ++guardate == 2)
            throw ErroreDatabase(u"08S01"_s, 2013, u"Lost connection"_s);
    });
    invia([&](FinestraInvio& finestra) {
        conferma(finestra);
        finisci(finestra);
        EXPECT_EQ(testo(finestra),
                  u"1 avviso prodotto, 1 rifiutato, 3 non cominciati: l'archivio non risponde."_s);
        EXPECT_THAT(esiti(finestra), testing::Contains(u"non cominciata"_s).Times(3));
        QTest::keyClick(&finestra, Qt::Key_Escape);
    });
    impostaTraccia(vecchia);
    EXPECT_EQ(mStampate.size(), 1);
}

TEST_P(ProvaInvio, laRistampaNonConta)
{
    vai(u"42/2026"_s);
    invia(
        [&](FinestraInvio& finestra) {
            EXPECT_EQ(testo(finestra), u"1 ristampa a 1 cliente."_s);
            conferma(finestra);
            finisci(finestra);
            QTest::keyClick(&finestra, Qt::Key_Escape);
        },
        Qt::Key_P);
    EXPECT_THAT(mStampate, ElementsAre(u"42_2026"_s));
    EXPECT_EQ(avvisi(), QString());
}

TEST_P(ProvaInvio, senzaUnCasoLoDice)
{
    premi(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(detto(), u"Nessun caso scelto: indicarne uno nell'elenco, o cercarlo."_s);
    segnaTutte();
    premi(Qt::Key_R, Qt::ControlModifier);
    EXPECT_EQ(detto(), u"I casi segnati sono 5: qui se ne apre uno alla volta."_s);
}

INSTANTIATE_TEST_SUITE_P(Basi, ProvaInvio, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);
