#include "finestra.h"

#include "giacenza_finta.h"
#include "support/stampa.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QStatusBar>
#include <QTest>
#include <QWindow>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using deposito::Finestra;
using testing::ElementsAre;

namespace {

const QString archivio = u"DRIVER={SQLite3};Database=/dati/giacenza.db;PWD=segreta"_s;

class ProvaFinestra : public testing::Test
{
protected:
    ProvaFinestra()
    {
        giacenzaFinta() = {};
        mFinestra =
            std::make_unique<Finestra>(deposito::Opzioni{archivio, u"/dati/g.ini"_s, u"/dati/logo.gif"_s});
        mFinestra->show();
        mFinestra->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(mFinestra.get()));
    }

    template<class Oggetto>
    Oggetto& figlio(const char16_t* nome)
    {
        auto* trovato = mFinestra->findChild<Oggetto*>(QString::fromUtf16(nome));
        if (!trovato)
            throw std::runtime_error("manca " + QString::fromUtf16(nome).toStdString());
        return *trovato;
    }

    void premi(const char16_t* pulsante)
    {
        QTest::mouseClick(&figlio<QPushButton>(pulsante), Qt::LeftButton);
    }
    void scegli(const char16_t* azione) { figlio<QAction>(azione).trigger(); }
    QString stato() { return mFinestra->statusBar()->currentMessage(); }
    bool messaggioVisibile() { return figlio<QFrame>(u"fraMessaggio").isVisible(); }
    QString messaggio() { return figlio<QLabel>(u"lblMessaggio").text(); }
    QStringList chiamateDopo(qsizetype prime) { return giacenzaFinta().chiamate.mid(prime); }

    std::unique_ptr<Finestra> mFinestra;
};

constexpr int impostate = 3;

} // namespace

TEST_F(ProvaFinestra, da_al_componente_i_suoi_percorsi_prima_di_ogni_apertura)
{
    EXPECT_THAT(giacenzaFinta().chiamate,
                ElementsAre(u"database "_s + archivio, u"ini /dati/g.ini"_s, u"logo /dati/logo.gif"_s));
    EXPECT_EQ(stato(), u"Pronto."_s);
    EXPECT_EQ(figlio<QLabel>(u"lblArchivio").text(), u"Archivio: giacenza.db"_s);
    EXPECT_FALSE(messaggioVisibile());
}

TEST_F(ProvaFinestra, i_tasti_aprono_le_schermate)
{
    for (const Qt::Key tasto : {Qt::Key_F2, Qt::Key_F3, Qt::Key_F7, Qt::Key_F6})
        QTest::keyClick(mFinestra.get(), tasto);
    EXPECT_THAT(chiamateDopo(impostate), ElementsAre(u"nuova"_s, u"gestione"_s, u"tipo 1"_s, u"riconsegna"_s,
                                                     u"tipo 2"_s, u"riconsegna"_s));
}

TEST_F(ProvaFinestra, le_voci_dei_menu_aprono_le_schermate)
{
    for (const char16_t* azione : {u"azNuova", u"azGestione", u"azRiconsegna", u"azReso"})
        scegli(azione);
    EXPECT_THAT(chiamateDopo(impostate), ElementsAre(u"nuova"_s, u"gestione"_s, u"tipo 1"_s, u"riconsegna"_s,
                                                     u"tipo 2"_s, u"riconsegna"_s));
    EXPECT_EQ(stato(), u"Reso a mittente: schermata aperta."_s);
}

TEST_F(ProvaFinestra, la_lettera_di_vettura_passa_com_e_scritta)
{
    EXPECT_FALSE(figlio<QWidget>(u"fraLdv").isVisible());
    QTest::keyClick(mFinestra.get(), Qt::Key_F4);
    EXPECT_TRUE(figlio<QLineEdit>(u"txtLdv").hasFocus());
    QTest::keyClicks(&figlio<QLineEdit>(u"txtLdv"), u"00123"_s);
    QTest::keyClicks(&figlio<QLineEdit>(u"txtDataLdv"), u"05032015"_s);
    QTest::keyClicks(&figlio<QLineEdit>(u"txtFiliale"), u"MI"_s);
    QTest::keyClicks(&figlio<QLineEdit>(u"txtCliente"), u"77"_s);
    QTest::keyClick(&figlio<QLineEdit>(u"txtCliente"), Qt::Key_Return);
    EXPECT_THAT(chiamateDopo(impostate), ElementsAre(u"nuova 00123|05/03/2015|MI|77"_s));
    EXPECT_EQ(stato(), u"Nuova giacenza per la LDV 00123: schermata aperta."_s);
    QTest::keyClick(mFinestra.get(), Qt::Key_F4);
    EXPECT_EQ(chiamateDopo(impostate).size(), 2) << "F4 again takes what is written";
    QTest::keyClick(mFinestra.get(), Qt::Key_Escape);
    EXPECT_FALSE(figlio<QWidget>(u"fraLdv").isVisible());
}

TEST_F(ProvaFinestra, campi_vuoti_passano_vuoti)
{
    scegli(u"azNuovaLdv");
    premi(u"cmdNuovaLdv");
    EXPECT_THAT(chiamateDopo(impostate), ElementsAre(u"nuova |||"_s));
}

TEST_F(ProvaFinestra, un_archivio_che_non_risponde_e_detto_e_la_finestra_resta_in_uso)
{
    giacenzaFinta().errore =
        std::make_exception_ptr(giacenza::ErroreDatabase(u"08001"_s, 2002, u"Can't connect"_s));
    scegli(u"azGestione");
    EXPECT_TRUE(messaggioVisibile());
    EXPECT_EQ(messaggio(),
              u"La schermata non è stata aperta. Il server dell'archivio non risponde. Controllare che il "
              u"server sia acceso, il nome, la porta e la rete.\n\nRisposta dell'archivio: Can't connect "
              u"(08001, 2002)"_s);
    EXPECT_EQ(stato(), u"Gestione giacenze: schermata non aperta."_s);

    giacenzaFinta().errore = {};
    scegli(u"azGestione");
    EXPECT_FALSE(messaggioVisibile());
    EXPECT_EQ(stato(), u"Gestione giacenze: schermata aperta."_s);
}

TEST_F(ProvaFinestra, ogni_altro_errore_e_detto_col_suo_testo)
{
    giacenzaFinta().errore = std::make_exception_ptr(giacenza::Errore(u"Località sconosciuta"_s));
    scegli(u"azNuova");
    EXPECT_EQ(messaggio(), u"La schermata non è stata aperta. Località sconosciuta"_s);
    premi(u"cmdChiudiMessaggio");
    EXPECT_FALSE(messaggioVisibile());
}

TEST_F(ProvaFinestra, dice_quando_una_schermata_si_chiude)
{
    Q_EMIT giacenzaFinta().attuale->fine();
    EXPECT_TRUE(
        QRegularExpression(u"^Schermata chiusa alle \\d\\d:\\d\\d:\\d\\d\\.$"_s).match(stato()).hasMatch())
        << stato().toStdString();
}

TEST_F(ProvaFinestra, con_una_schermata_aperta_si_esce_alla_seconda_richiesta)
{
    QWidget schermata;
    schermata.show();
    EXPECT_FALSE(mFinestra->close());
    EXPECT_EQ(messaggio(),
              u"Ci sono schermate ancora aperte: uscendo si perde ciò che non è salvato. Per uscire lo "
              u"stesso, chiudere di nuovo."_s);
    EXPECT_TRUE(mFinestra->close());
}

TEST_F(ProvaFinestra, in_uso_sta_sopra_le_schermate_e_poi_cede_il_posto)
{
    const auto sopra = [this] {
        return mFinestra->windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint);
    };
    EXPECT_TRUE(sopra());
    QWidget schermata;
    schermata.show();
    schermata.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&schermata));
    EXPECT_FALSE(sopra());
    mFinestra->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(mFinestra.get()));
    EXPECT_TRUE(sopra());
    scegli(u"azNuova");
    EXPECT_FALSE(sopra()) << "the screen that opens must not stand behind";
    giacenzaFinta().errore = std::make_exception_ptr(giacenza::Errore(u"guasto"_s));
    scegli(u"azNuova");
    EXPECT_TRUE(sopra()) << "nothing opened";
}

TEST_F(ProvaFinestra, l_avviso_di_uscita_porta_avanti_anche_la_finestra_ridotta_a_icona)
{
    QWidget schermata;
    schermata.show();
    mFinestra->showMinimized();
    schermata.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&schermata));
    EXPECT_FALSE(mFinestra->close());
    EXPECT_FALSE(mFinestra->isMinimized());
    EXPECT_TRUE(mFinestra->windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
    EXPECT_TRUE(QTest::qWaitForWindowActive(mFinestra.get()));
}

TEST_F(ProvaFinestra, un_altra_azione_annulla_l_uscita)
{
    QWidget schermata;
    schermata.show();
    scegli(u"azEsci");
    scegli(u"azNuova");
    EXPECT_FALSE(messaggioVisibile());
    scegli(u"azEsci");
    EXPECT_TRUE(mFinestra->isVisible());
}

TEST_F(ProvaFinestra, la_schermata_che_si_chiude_porta_via_l_avviso_di_uscita_e_nessun_altro)
{
    {
        QWidget schermata;
        schermata.show();
        scegli(u"azEsci");
        EXPECT_TRUE(messaggioVisibile());
    }
    Q_EMIT giacenzaFinta().attuale->fine();
    EXPECT_FALSE(messaggioVisibile());

    giacenzaFinta().errore = std::make_exception_ptr(giacenza::Errore(u"guasto"_s));
    scegli(u"azNuova");
    Q_EMIT giacenzaFinta().attuale->fine();
    EXPECT_TRUE(messaggioVisibile());
}

TEST_F(ProvaFinestra, senza_schermate_si_esce_subito)
{
    scegli(u"azEsci");
    EXPECT_FALSE(mFinestra->isVisible());
}

TEST_F(ProvaFinestra, si_percorre_con_la_tastiera_nell_ordine_di_lettura)
{
    scegli(u"azNuovaLdv");
    QStringList ordine;
    for (int passo = 0; passo < 10; ++passo) {
        ordine << QApplication::focusWidget()->objectName();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_THAT(ordine,
                ElementsAre(u"txtLdv"_s, u"txtDataLdv"_s, u"txtFiliale"_s, u"txtCliente"_s, u"cmdNuovaLdv"_s,
                            u"txtCerca"_s, u"cmdCerca"_s, u"txtFiltro"_s, u"cmbFiliale"_s, u"tabCasi"_s));
}

TEST_F(ProvaFinestra, all_inizio_si_puo_scansionare)
{
    EXPECT_TRUE(figlio<QLineEdit>(u"txtCerca").hasFocus());
    for (const char16_t* menu : {u"menuElenco", u"menuCaso"})
        EXPECT_GE(figlio<QMenu>(menu).actions().size(), 5);
}

TEST_F(ProvaFinestra, ogni_lettera_abbreviata_ne_vuol_dire_una_sola)
{
    QStringList testi;
    for (const QAction* menu : mFinestra->menuBar()->actions())
        testi << menu->text();
    for (const auto* pulsante : mFinestra->findChildren<QPushButton*>())
        testi << pulsante->text();
    for (const auto* etichetta : mFinestra->findChildren<QLabel*>())
        if (etichetta->buddy())
            testi << etichetta->text();
    QStringList lettere;
    for (const QString& testo : testi)
        lettere << QKeySequence::mnemonic(testo).toString();
    EXPECT_EQ(lettere.size(), 15);
    EXPECT_FALSE(lettere.contains(QString()));
    EXPECT_EQ(lettere.removeDuplicates(), 0) << lettere.join(u' ').toStdString();
}

TEST_F(ProvaFinestra, sta_in_uno_schermo_piccolo_anche_con_un_messaggio)
{
    giacenzaFinta().errore = std::make_exception_ptr(
        giacenza::ErroreDatabase(u"HY000"_s, 1, u"una risposta lunga "_s.repeated(40)));
    scegli(u"azNuova");
    mFinestra->adjustSize();
    EXPECT_LE(mFinestra->width(), 1366);
    EXPECT_LE(mFinestra->height(), 700);
}

TEST(FinestraSenzaArchivio, lo_dice_subito)
{
    giacenzaFinta() = {};
    Finestra finestra({});
    EXPECT_EQ(finestra.findChild<QLabel*>(u"lblArchivio"_s)->text(), u"Nessun archivio"_s);
    EXPECT_EQ(finestra.findChild<QLabel*>(u"lblMessaggio"_s)->text(),
              u"Non è stato indicato l'archivio su cui lavorare: avviare il programma con --database e la "
              u"stringa di "
              u"connessione."_s);
}
