#include "search/frmRicerca.h"

#include "data/traccia.h"
#include "search/listascelta.h"
#include "support/bancadati.h"
#include "support/registromessaggi.h"
#include "support/stampa.h"
#include "support/trova.h"

#include <gmock/gmock.h>

#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QWindow>

#include <algorithm>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;
using testing::ElementsAre;

namespace {

const auto nessuna = u"DRIVER={Un driver che non esiste};"_s;

/// The dialog, shown, and its controls.
class Finestra : public testing::Test
{
protected:
    Finestra() { apri(); }

    void apri()
    {
        mFinestra.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&mFinestra));
    }

    template<class Controllo>
    Controllo* c(const QString& nome)
    {
        return trova<Controllo>(mFinestra, nome);
    }

    void scegliOpzione(const QString& nome)
    {
        auto* opzione = c<QRadioButton>(nome);
        QTest::mouseClick(opzione, Qt::LeftButton, {}, QPoint(8, opzione->height() / 2));
        ASSERT_TRUE(opzione->isChecked()) << nome.toStdString();
    }

    /// Types a text and presses Enter.
    void cerca(const QString& testo)
    {
        mTesto->setFocus();
        mTesto->selectAll();
        QTest::keyClick(mTesto, Qt::Key_Delete);
        // The simulated keyboard knows ASCII only; what it lacks comes as a paste would.
        const bool tastiera = std::ranges::all_of(testo, [](QChar c) { return c >= u' ' && c <= u'~'; });
        if (tastiera && testo.size() < 100)
            QTest::keyClicks(mTesto, testo);
        else
            mTesto->insert(testo);
        QTest::keyClick(mTesto, Qt::Key_Return);
    }

    QStringList voci()
    {
        QStringList testi;
        for (int riga = 0; riga < mLista->count(); ++riga)
            testi += mLista->item(riga)->text();
        return testi;
    }

    void clicSuRiga(int riga)
    {
        QTest::mouseClick(mLista->viewport(), Qt::LeftButton, {},
                          mLista->visualItemRect(mLista->item(riga)).center());
    }

    RegistroMessaggi mMessaggi;
    frmRicerca mFinestra;
    QLineEdit* mTesto = c<QLineEdit>(u"txtCerca"_s);
    ListaScelta* mLista = c<ListaScelta>(u"lstCerca"_s);
};

/// The same on a database with some parties.
class FinestraPiena : public Finestra, public testing::WithParamInterface<std::string>
{
protected:
    FinestraPiena()
    {
        mBase.esegui(u"insert into clien (Codice, RagioneSociale, Localita, Provincia, PartitaIva) values "
                     "(1, 'Alfa Srl', ' Bergamo ', 'BG', '01234567890'), "
                     "(2, 'Fratelli Alfa ', 'Treviglio', 'BG', '11234567890'), "
                     "(30, 'Beta', 'Berbenno', null, null);"_s);
        mFinestra.setNomeTabella(u"Clien"_s);
        mFinestra.setStringaConnessione(mBase.stringa());
    }

    void aggiungiMolti(int quanti)
    {
        QStringList righe;
        for (int i = 0; i < quanti; ++i)
            righe += u"(%1, 'Zeta %2')"_s.arg(1000 + i).arg(i, 6, 10, QChar(u'0'));
        mBase.esegui(u"insert into clien (Codice, RagioneSociale) values "_s + righe.join(u',') + u';');
    }

    BancaDati mBase{GetParam()};
};

} // namespace

TEST_F(Finestra, leDidascalieSeguonoIlTipo)
{
    auto* optCodice = c<QRadioButton>(u"optCodice"_s);
    EXPECT_EQ(mFinestra.windowTitle(), u"Prove tecniche di trasmissione"_s);
    const QString iniziale = optCodice->text();
    for (const qint16 tipo : {qint16(0), qint16(4), qint16(-1), qint16(32767)}) {
        mFinestra.setClienti_Fornitori(tipo);
        EXPECT_EQ(mFinestra.windowTitle(), u"Prove tecniche di trasmissione"_s);
        EXPECT_EQ(optCodice->text(), iniziale);
    }
    mFinestra.setClienti_Fornitori(1);
    EXPECT_EQ(mFinestra.windowTitle(), u"Ricerca Cliente"_s);
    EXPECT_EQ(optCodice->text(), u"Cod. Cliente"_s);
    mFinestra.setClienti_Fornitori(2);
    EXPECT_EQ(mFinestra.windowTitle(), u"Ricerca Fornitore"_s);
    EXPECT_EQ(optCodice->text(), u"Cod.Fornitore"_s);
    mFinestra.setClienti_Fornitori(3);
    EXPECT_EQ(mFinestra.windowTitle(), u"Ricerca Destinatario"_s);
    EXPECT_EQ(optCodice->text(), u"Cod.Destinatario"_s);
    QTest::keyClick(mTesto, Qt::Key_C, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return optCodice->isChecked(); }));
}

TEST_F(Finestra, leOpzioniPerNumeroSpengonoIlTipoDiStringa)
{
    const QWidget* fra = c<QGroupBox>(u"fraTipoStringa"_s);
    auto* iniziale = c<QRadioButton>(u"optIniziale"_s);
    const auto* interna = c<QRadioButton>(u"optInterna"_s);
    EXPECT_TRUE(fra->isEnabled());
    for (const QString& nome : {u"optCodice"_s, u"optIva"_s}) {
        scegliOpzione(u"optRagSoc"_s);
        scegliOpzione(u"optInterna"_s);
        scegliOpzione(nome);
        EXPECT_TRUE(iniziale->isChecked());
        EXPECT_FALSE(fra->isEnabled());
        EXPECT_FALSE(iniziale->isEnabled());
        EXPECT_FALSE(interna->isEnabled());
        EXPECT_TRUE(mTesto->isEnabled());
        EXPECT_FALSE(mLista->isEnabled());
    }
    for (const QString& nome : {u"optRagSoc"_s, u"optLocalita"_s, u"optProvincia"_s}) {
        scegliOpzione(u"optIva"_s);
        scegliOpzione(nome);
        EXPECT_TRUE(fra->isEnabled());
        EXPECT_TRUE(iniziale->isEnabled());
        EXPECT_TRUE(interna->isEnabled());
    }
}

TEST_F(Finestra, unTestoVuotoLoDiceSottoLaSuaDidascaliaConOgniOpzione)
{
    for (const QString& nome :
         {u"optCodice"_s, u"optIva"_s, u"optRagSoc"_s, u"optLocalita"_s, u"optProvincia"_s}) {
        scegliOpzione(nome);
        QTest::mouseClick(c<QPushButton>(u"cmdRicerca"_s), Qt::LeftButton);
        EXPECT_THAT(mMessaggi.prendi(),
                    ElementsAre(Messaggio{u"Campo Ricerca vuoto! Bisogna inserire una stringa da ricercare"_s,
                                          Stile::avviso, u"Gestione trasorti"_s}));
        EXPECT_TRUE(mTesto->hasFocus());
    }
    EXPECT_TRUE(mFinestra.isVisible());
}

TEST_F(Finestra, unTestoSbagliatoSiDiceESiCancella)
{
    const auto messaggio = [this](const QString& opzione, const QString& testo) {
        scegliOpzione(opzione);
        cerca(testo);
        EXPECT_EQ(mTesto->text(), QString());
        EXPECT_TRUE(mTesto->hasFocus());
        const auto mostrati = mMessaggi.prendi();
        EXPECT_EQ(mostrati.size(), 1U);
        return mostrati.empty() ? QString() : mostrati[0].titolo + u": "_s + mostrati[0].testo;
    };
    EXPECT_EQ(
        messaggio(u"optCodice"_s, u"rossi"_s),
        u"Gestione Trasporti: Bisogna inserire un valore numerico nella casella Ricerca, se si seleziona "
        "la ricerca per 'CODICE' o per 'P.IVA'"_s);
    EXPECT_EQ(messaggio(u"optRagSoc"_s, u"123"_s),
              u"Gestione Trasporti: Selezionando la ricerca per 'Ragione Sociale','Località','Provincia'; "
              "bisogna inserire nella casella ricerca un valore non numerico"_s);
    EXPECT_EQ(
        messaggio(u"optIva"_s, u"0123456789"_s),
        u"Gestione Trasporti: Selezionando la ricerca per 'partita iva'; bisogna inserire nella casella "
        "ricerca un valore numerico di 11 caratteri"_s);
}

TEST_F(Finestra, unDatabaseCheNonRispondeSiDiceELaFinestraResta)
{
    mFinestra.setNomeTabella(u"Clien"_s);
    mFinestra.setStringaConnessione(nessuna);
    cerca(u"alfa"_s);
    const auto mostrati = mMessaggi.prendi();
    ASSERT_EQ(mostrati.size(), 1U);
    EXPECT_EQ(mostrati[0].stile, Stile::critico);
    EXPECT_EQ(mostrati[0].titolo, u"Gestione Trasporti"_s);
    EXPECT_THAT(mostrati[0].testo.toStdString(),
                testing::StartsWith("La ricerca nel database non è riuscita."));
    EXPECT_EQ(mTesto->text(), u"alfa"_s);
    EXPECT_TRUE(mFinestra.isVisible());
}

TEST_F(Finestra, unNomeDiTabellaNonValidoSiDice)
{
    mFinestra.setNomeTabella(u"clien; drop table clien"_s);
    cerca(u"alfa"_s);
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(Messaggio{u"Il nome di tabella \"clien; drop table clien\" non è valido."_s,
                                      Stile::critico, u"Gestione Trasporti"_s}));
}

TEST_F(Finestra, siChiudeSenzaSceltaInOgniModo)
{
    const std::function<void()> modi[] = {
        [this] { QTest::keyClick(mTesto, Qt::Key_Escape); },
        [this] { QTest::mouseClick(c<QPushButton>(u"cmdAnnulla"_s), Qt::LeftButton); },
        [this] { mFinestra.windowHandle()->close(); },
        [this] { QTest::keyClick(mTesto, Qt::Key_A, Qt::AltModifier); },
    };
    for (const auto& modo : modi) {
        modo();
        EXPECT_TRUE(QTest::qWaitFor([this] { return !mFinestra.isVisible(); }));
        EXPECT_EQ(mFinestra.result(), QDialog::Rejected);
        EXPECT_FALSE(mFinestra.trovato());
        EXPECT_EQ(mFinestra.IdRecord(), 0);
        apri();
    }
}

TEST_P(FinestraPiena, ogniOpzioneTrovaEScriveLeSueVoci)
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

TEST_P(FinestraPiena, nessunaOccorrenzaLoDiceESvuotaElenco)
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

TEST_P(FinestraPiena, unClicSceglieQuandoEFinito)
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

TEST_P(FinestraPiena, soloTastiera)
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

TEST_P(FinestraPiena, leRigheSiLeggonoAPagine)
{
    aggiungiMolti(2000);
    cerca(u"zeta"_s);
    const int pagina = mLista->righeVisibili();
    EXPECT_LE(mLista->count(), 2 * pagina);
    EXPECT_GE(mLista->count(), pagina);
    mLista->setFocus();
    QTest::keyClick(mLista, Qt::Key_Down);
    const int prima = mLista->count();
    QTest::keyClick(mLista, Qt::Key_End);
    EXPECT_GT(mLista->count(), prima);
    EXPECT_LE(mLista->count(), prima + 2 * pagina);
    for (int tasti = 0; tasti < 2000 && mLista->count() < 2000; ++tasti)
        QTest::keyClick(mLista, Qt::Key_PageDown);
    EXPECT_EQ(mLista->count(), 2000);
    QTest::keyClick(mLista, Qt::Key_End);
    EXPECT_EQ(mLista->currentItem()->text(), u"Zeta 001999"_s);
    QTest::keyClick(mLista, Qt::Key_Return);
    QCoreApplication::processEvents();
    EXPECT_EQ(mFinestra.IdRecord(), 2999);
}

TEST_P(FinestraPiena, ingranditaLeggeQuantoSiVede)
{
    aggiungiMolti(300);
    cerca(u"zeta"_s);
    mFinestra.resize(700, 1400);
    QCoreApplication::processEvents();
    EXPECT_GE(mLista->count(), mLista->righeVisibili());
}

TEST_P(FinestraPiena, unaTabellaCheNonCESiDiceESiPuoRicercare)
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

TEST_P(FinestraPiena, unCollegamentoPersoSiDiceESiRiapre)
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
    EXPECT_EQ(mostrati[0].testo,
              u"Il collegamento con il database non riesce o si è interrotto.\n\nLost connection"_s);
    cerca(u"beta"_s);
    EXPECT_EQ(voci(), QStringList{u"Beta"_s});
}

TEST_P(FinestraPiena, testiOstili)
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

TEST_P(FinestraPiena, unCodiceCheNonEUnNumeroNonSiSceglie)
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

TEST_P(FinestraPiena, sceltaFattaIlTastoDiRicercaChiudeSoltanto)
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

TEST_P(FinestraPiena, riapertaRicominciaDaCapo)
{
    cerca(u"beta"_s);
    clicSuRiga(0);
    QCoreApplication::processEvents();
    ASSERT_TRUE(mFinestra.trovato());
    apri();
    EXPECT_FALSE(mFinestra.trovato());
    EXPECT_EQ(mFinestra.IdRecord(), 0);
    EXPECT_EQ(mLista->count(), 0);
    EXPECT_FALSE(mLista->isEnabled());
    cerca(u"alfa"_s);
    clicSuRiga(0);
    QCoreApplication::processEvents();
    EXPECT_EQ(mFinestra.IdRecord(), 1);
}

INSTANTIATE_TEST_SUITE_P(Basi, FinestraPiena, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);
