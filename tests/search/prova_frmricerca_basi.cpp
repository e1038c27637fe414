#include "search/finestraricerca.h"

#include "data/archivio.h"

#include <QPushButton>
#include <QScrollBar>
#include <QWheelEvent>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;
using testing::ElementsAre;

TEST_P(FinestraRicercaPiena, ogniOpzioneTrovaEScriveLeSueVoci)
{
    cerca(u"alfa"_s);
    EXPECT_EQ(voci(), QStringList{u"Alfa Srl"_s});
    EXPECT_TRUE(mLista->isEnabled());
    EXPECT_EQ(mLista->palette().color(QPalette::Base), QGuiApplication::palette().color(QPalette::Base));
    EXPECT_EQ(mLista->item(0)->data(Qt::UserRole).toString(), u"1"_s);

    scegliOpzione(u"optInterna"_s);
    cerca(u"alfa"_s);
    EXPECT_EQ(voci(), (QStringList{u"Alfa Srl"_s, u"Fratelli Alfa "_s}));

    scegliOpzione(u"optLocalita"_s);
    EXPECT_FALSE(mLista->isEnabled());
    EXPECT_NE(mLista->palette().color(QPalette::Base), QGuiApplication::palette().color(QPalette::Base));
    cerca(u"v"_s);
    EXPECT_EQ(voci(), QStringList{u"Fratelli Alfa --- Treviglio"_s});
    EXPECT_TRUE(mLista->isEnabled());

    scegliOpzione(u"optIniziale"_s);
    scegliOpzione(u"optProvincia"_s);
    cerca(u"bg"_s);
    EXPECT_EQ(voci(), (QStringList{u"Alfa Srl --- BG"_s, u"Fratelli Alfa --- BG"_s}));

    scegliOpzione(u"optCodice"_s);
    cerca(u"30"_s);
    EXPECT_EQ(voci(), QStringList{u"Beta"_s});

    scegliOpzione(u"optIva"_s);
    cerca(u"11234567890"_s);
    EXPECT_EQ(voci(), QStringList{u"Fratelli Alfa "_s});
}

TEST_P(FinestraRicercaPiena, nessunaOccorrenzaLoDiceESvuotaElenco)
{
    cerca(u"alfa"_s);
    cerca(u"nessuno"_s);
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(Messaggio{u"Occorrenza non trovata nel database."_s,
                                                          Stile::avviso, u"Gestione Trasporti"_s}));
    EXPECT_TRUE(mFinestra.NonTrovataOccorrenza());
    EXPECT_EQ(mLista->count(), 0);
    EXPECT_FALSE(mLista->isEnabled());
    EXPECT_EQ(mTesto->text(), QString());
    EXPECT_TRUE(mTesto->hasFocus());
    cerca(u"alfa"_s);
    EXPECT_FALSE(mFinestra.NonTrovataOccorrenza());
}

TEST_P(FinestraRicercaPiena, unClicSceglieQuandoEFinito)
{
    cerca(u"beta"_s);
    clicSuRiga(0);
    EXPECT_TRUE(mFinestra.isVisible());
    QCoreApplication::processEvents();
    EXPECT_FALSE(mFinestra.isVisible());
    EXPECT_TRUE(mFinestra.trovato());
    EXPECT_EQ(mFinestra.IdRecord(), 30);
    EXPECT_EQ(mFinestra.ragioneSociale(), u"Beta"_s);
    EXPECT_EQ(mFinestra.result(), QDialog::Accepted);
}

TEST_P(FinestraRicercaPiena, laFrecciaInGiuPortaDalTestoAllElenco)
{
    QTest::keyClick(mTesto, Qt::Key_Down);
    EXPECT_TRUE(mTesto->hasFocus()) << "there is nothing to go to";
    cerca(u"beta"_s);
    EXPECT_TRUE(mLista->isEnabled());
    EXPECT_EQ(mLista->palette().color(QPalette::Base), QGuiApplication::palette().color(QPalette::Base));
    mTesto->setFocus();
    QTest::keyClick(mTesto, Qt::Key_Down);
    ASSERT_TRUE(mLista->hasFocus());
    QTest::keyClick(mLista, Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_EQ(mFinestra.IdRecord(), 30);
}

TEST_P(FinestraRicercaPiena, soloTastiera)
{
    scegliOpzione(u"optInterna"_s);
    cerca(u"alfa"_s);
    QWidget* fuoco = mTesto;
    for (int passi = 0; passi < 12 && !mLista->hasFocus(); ++passi) {
        QTest::keyClick(fuoco, Qt::Key_Tab);
        fuoco = mFinestra.focusWidget();
    }
    ASSERT_TRUE(mLista->hasFocus());
    QCoreApplication::processEvents();
    EXPECT_TRUE(mFinestra.isVisible());

    int istruzioni = 0;
    const Traccia prima = impostaTraccia(
        [&](EventoDati evento, const QString&) { istruzioni += evento == EventoDati::istruzione; });
    QTest::keyClick(mLista, Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_TRUE(mFinestra.isVisible());
    QTest::keyClick(mLista, Qt::Key_Down);
    QTest::keyClick(mLista, Qt::Key_Down);
    EXPECT_TRUE(mFinestra.isVisible());
    QTest::keyClick(mLista, Qt::Key_Return);
    QCoreApplication::processEvents();
    impostaTraccia(prima);
    EXPECT_EQ(istruzioni, 0);
    EXPECT_FALSE(mFinestra.isVisible());
    EXPECT_EQ(mFinestra.IdRecord(), 2);
    EXPECT_EQ(mFinestra.ragioneSociale(), u"Fratelli Alfa "_s);
}

TEST_P(FinestraRicercaPiena, leRigheSiLeggonoAPagine)
{
    aggiungiMolti(2000);
    cerca(u"zeta"_s);
    constexpr int pagina = 256;
    EXPECT_EQ(mLista->count(), pagina);
    QCoreApplication::processEvents(); // the list lays its rows out
    EXPECT_GT(mLista->verticalScrollBar()->maximum(), 0) << "the list shows that it goes on";
    mLista->setFocus();
    QTest::keyClick(mLista, Qt::Key_Down);
    const int prima = mLista->count();
    QTest::keyClick(mLista, Qt::Key_End);
    EXPECT_GT(mLista->count(), prima);
    EXPECT_LE(mLista->count(), prima + 2 * pagina);
    EXPECT_GE(mLista->count(), prima + pagina);
    for (int tasti = 0; tasti < 2000 && mLista->count() < 2000; ++tasti)
        QTest::keyClick(mLista, Qt::Key_PageDown);
    EXPECT_EQ(mLista->count(), 2000);
    QTest::keyClick(mLista, Qt::Key_End);
    EXPECT_EQ(mLista->currentItem()->text(), u"Zeta 001999"_s);
    QTest::keyClick(mLista, Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_EQ(mFinestra.IdRecord(), 2999);
}

TEST_P(FinestraRicercaPiena, conLaSolaRotellaSiArrivaInFondo)
{
    aggiungiMolti(600);
    for (const int punti : {8, 9, 12}) {
        QFont carattere = mFinestra.font();
        carattere.setPointSize(punti);
        mFinestra.setFont(carattere);
        cerca(u"zeta"_s);
        QCoreApplication::processEvents();
        QWidget* vista = mLista->viewport();
        for (int giri = 0; giri < 600 && mLista->count() < 600; ++giri) {
            QWheelEvent giro(vista->rect().center(), vista->mapToGlobal(vista->rect().center()), {},
                             {0, -120}, {}, {}, Qt::NoScrollPhase, false);
            QApplication::sendEvent(vista, &giro);
            QCoreApplication::processEvents();
        }
        EXPECT_EQ(mLista->count(), 600) << punti << " points";
        EXPECT_FALSE(mLista->hasFocus());
    }
}

TEST_P(FinestraRicercaPiena, ingranditaLeggeQuantoSiVede)
{
    aggiungiMolti(300);
    cerca(u"zeta"_s);
    mFinestra.resize(700, 1400);
    QCoreApplication::processEvents();
    EXPECT_GE(mLista->count(), mLista->righeVisibili());
}

TEST_P(FinestraRicercaPiena, unaTabellaCheNonCESiDiceESiPuoRicercare)
{
    mFinestra.setNomeTabella(u"nessuna_tabella"_s);
    cerca(u"alfa"_s);
    const auto mostrati = mMessaggi.prendi();
    ASSERT_EQ(mostrati.size(), 1U);
    EXPECT_THAT(mostrati[0].testo.toStdString(),
                testing::StartsWith("La ricerca nel database non è riuscita."));
    EXPECT_EQ(mostrati[0].stile, Stile::critico);
    EXPECT_FALSE(mFinestra.NonTrovataOccorrenza());
    EXPECT_FALSE(mLista->isEnabled());
    mFinestra.setNomeTabella(u"Clien"_s);
    cerca(u"alfa"_s);
    EXPECT_EQ(voci(), QStringList{u"Alfa Srl"_s});
}

TEST_P(FinestraRicercaPiena, unCollegamentoPersoSiDiceESiRiapre)
{
    cerca(u"alfa"_s);
    const Traccia prima = impostaTraccia([](EventoDati evento, const QString& testo) {
        if (evento == EventoDati::istruzione)
            throw ErroreDatabase(u"08S01"_s, 2013, u"Lost connection"_s, testo);
    });
    cerca(u"beta"_s);
    impostaTraccia(prima);
    const auto mostrati = mMessaggi.prendi();
    ASSERT_EQ(mostrati.size(), 1U);
    EXPECT_EQ(
        mostrati[0].testo,
        u"Il collegamento con il database non riesce o si è interrotto.\n\nLa connessione con l'archivio è caduta."_s);
    cerca(u"beta"_s);
    EXPECT_EQ(voci(), QStringList{u"Beta"_s});
}

TEST_P(FinestraRicercaPiena, testiOstili)
{
    for (const QString& testo :
         {u"D'Alì \"x\""_s, u"🍕"_s, u"%"_s, u"_"_s, u"\\"_s, u"' or '1'='1"_s, QString(10000, u'a'),
          u"🍕"_s.repeated(5000), u"   "_s, u"a\u2028b"_s, u"\u202Ealfa"_s}) {
        cerca(testo);
        EXPECT_EQ(mMessaggi.testi(), QStringList{u"Occorrenza non trovata nel database."_s})
            << testo.left(20).toStdString();
        mMessaggi.prendi();
    }
    scegliOpzione(u"optCodice"_s);
    cerca(QString(10000, u'9'));
    EXPECT_EQ(mMessaggi.testi(), QStringList{u"Occorrenza non trovata nel database."_s});
    EXPECT_TRUE(mFinestra.isVisible());
}

TEST_P(FinestraRicercaPiena, unCodiceCheNonEUnNumeroNonSiSceglie)
{
    mBase.esegui(u"insert into forni (Codice, RagioneSociale) values ('V1', 'Vettore Uno'), "
                 "('9999999999', 'Vettore Lungo'), ('007', 'Vettore Sette');"_s);
    mFinestra.setNomeTabella(u"forni"_s);
    cerca(u"vettore"_s);
    ASSERT_EQ(mLista->count(), 3);
    clicSuRiga(2);
    QCoreApplication::processEvents();
    EXPECT_EQ(mMessaggi.testi(),
              QStringList{u"Il codice \"V1\" non è un numero: il soggetto non può essere scelto."_s});
    EXPECT_TRUE(mFinestra.isVisible());
    clicSuRiga(1);
    QCoreApplication::processEvents();
    EXPECT_FALSE(mFinestra.isVisible());
    EXPECT_EQ(mFinestra.IdRecord(), 7);
}

TEST_P(FinestraRicercaPiena, sceltaFattaIlTastoDiRicercaChiudeSoltanto)
{
    cerca(u"beta"_s);
    int istruzioni = 0;
    const Traccia prima = impostaTraccia(
        [&](EventoDati evento, const QString&) { istruzioni += evento == EventoDati::istruzione; });
    clicSuRiga(0);
    c<QPushButton>(u"cmdRicerca"_s)->click();
    impostaTraccia(prima);
    EXPECT_EQ(istruzioni, 0);
    EXPECT_FALSE(mFinestra.isVisible());
    QCoreApplication::processEvents();
    EXPECT_EQ(mFinestra.IdRecord(), 30);
    EXPECT_EQ(mFinestra.result(), QDialog::Accepted);
}

TEST_P(FinestraRicercaPiena, riapertaRicominciaDaCapo)
{
    mFinestra.setClienti_Fornitori(1);
    scegliOpzione(u"optProvincia"_s);
    scegliOpzione(u"optInterna"_s);
    cerca(u"g"_s);
    clicSuRiga(0);
    QCoreApplication::processEvents();
    ASSERT_TRUE(mFinestra.trovato());
    mFinestra.setClienti_Fornitori(0);
    apri();
    EXPECT_EQ(mFinestra.windowTitle(), u"Prove tecniche di trasmissione"_s);
    EXPECT_EQ(c<QRadioButton>(u"optCodice"_s)->text(), u"Codice"_s);
    EXPECT_TRUE(c<QRadioButton>(u"optRagSoc"_s)->isChecked());
    EXPECT_TRUE(c<QRadioButton>(u"optIniziale"_s)->isChecked());
    EXPECT_EQ(mTesto->text(), QString());
    EXPECT_FALSE(mFinestra.trovato());
    EXPECT_EQ(mFinestra.IdRecord(), 0);
    EXPECT_EQ(mLista->count(), 0);
    EXPECT_FALSE(mLista->isEnabled());
    cerca(u"alfa"_s);
    clicSuRiga(0);
    QCoreApplication::processEvents();
    EXPECT_EQ(mFinestra.IdRecord(), 1);
}

INSTANTIATE_TEST_SUITE_P(Basi, FinestraRicercaPiena, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);
