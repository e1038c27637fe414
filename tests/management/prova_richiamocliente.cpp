// The case retrieved from the customer's list.

#include "management/richiamodiprova.h"

#include "support/stampa.h"
#include "support/trova.h"

#include <QCheckBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class RichiamoCliente : public RichiamoDiProva
{
protected:
    void riattiva()
    {
        QEvent attivata(QEvent::WindowActivate);
        QCoreApplication::sendEvent(mSchermata, &attivata);
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, RichiamoCliente, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(RichiamoCliente, LaCasellaSceglieIlModo)
{
    apri();
    auto* casella = qobject_cast<QCheckBox*>(c("chkRicerca"));
    EXPECT_EQ(casella->text(), u"Ric. per n. giacenza"_s);
    c("chkRicerca")->setFocus();
    QTest::keyClick(casella, Qt::Key_Space);
    EXPECT_EQ(casella->text(), u"Ric. cod. cliente"_s);
    for (const char* nome : {"lblGiace", "lblDataGiace", "txtNGiace", "txtDataGiace"})
        EXPECT_FALSE(attivo(nome)) << nome;
    for (const char* nome : {"lblCliente", "txtCodiceCli", "barCliente", "cmdCercaCliente"})
        EXPECT_TRUE(attivo(nome)) << nome;
    const QColor bianco = c("txtCodiceCli")->palette().color(QPalette::Base);
    EXPECT_EQ(bianco, QColor(Qt::white));
    EXPECT_NE(c("txtNGiace")->grab().toImage().pixelColor(20, 4), bianco);
    QTest::keyClick(casella, Qt::Key_Space);
    EXPECT_TRUE(attivo("txtNGiace"));
    EXPECT_FALSE(attivo("txtCodiceCli"));
    EXPECT_EQ(c("txtNGiace")->grab().toImage().pixelColor(20, 4), bianco);
}

TEST_P(RichiamoCliente, OgniAttivazioneTornaAiCampiDelNumeroELaCasellaResta)
{
    apri();
    clicca("chkRicerca");
    scrivi("txtCodiceCli", u"1001"_s);
    riattiva();
    EXPECT_TRUE(qobject_cast<QCheckBox*>(c("chkRicerca"))->isChecked());
    EXPECT_EQ(qobject_cast<QCheckBox*>(c("chkRicerca"))->text(), u"Ric. per n. giacenza"_s);
    EXPECT_TRUE(attivo("txtNGiace"));
    EXPECT_FALSE(attivo("txtCodiceCli"));
    bool venuta = false;
    nelDialogo([&](QDialog& dialogo) {
        venuta = dialogo.objectName() == u"frmRicercaGia"_s;
        QTest::keyClick(&dialogo, Qt::Key_Escape);
    });
    clicca("cmdRicGiac");
    EXPECT_TRUE(venuta) << "the retrieval follows the check box";
    EXPECT_THAT(mMessaggi.prendi(), IsEmpty());
    EXPECT_EQ(mostrato("lblNrGia"), QString());
}

TEST_P(RichiamoCliente, PerClienteSiPrendeLaRigaConITasti)
{
    apri();
    clicca("chkRicerca");
    scrivi("txtCodiceCli", u"1001"_s);
    lascia("txtCodiceCli");
    EXPECT_EQ(mostrato("barCliente"), u"Ferramenta Lombarda S.r.l."_s);
    QString ldv;
    nelDialogo([&](QDialog& dialogo) {
        EXPECT_EQ(dialogo.windowTitle(), u"Ricerca Giacenze"_s) << "as on the re-delivery screen";
        EXPECT_EQ(trova<QLabel>(dialogo, u"lblRif"_s)->text(), u"Num. LDV"_s);
        EXPECT_EQ(trova<QLabel>(dialogo, u"lblCliente"_s)->text(), u"Ferramenta Lombarda S.r.l."_s);
        auto* griglia = trova<QTableView>(dialogo, u"Griglia"_s);
        ASSERT_EQ(griglia->model()->rowCount(), 3);
        griglia->setFocus();
        QTest::keyClick(griglia, Qt::Key_Down);
        ldv = griglia->currentIndex().siblingAtColumn(0).data().toString();
        QTest::keyClick(griglia, Qt::Key_Return);
    });
    const QStringList inviate = istruzioni([&] { clicca("cmdRicGiac"); });
    EXPECT_THAT(inviate, testing::Contains(blocco() + u" WHERE lenrlv='%1' and "
                                                      "ledtlv='2026-11-12';"_s.arg(ldv)));
    ASSERT_FALSE(ldv.isEmpty());
    EXPECT_EQ(mostrato("txtLDV"), ldv);
    EXPECT_EQ(mostrato("lblNrGia"), mBase.leggi(u"select GINRGI from giace00f where GINRLV='%1'"_s.arg(ldv)));
    EXPECT_EQ(mostrato("lblClienteCaso"), u"Cliente 1001 Ferramenta Lombarda S.r.l."_s)
        << "the name is known: it is worth no statement";
    EXPECT_THAT(inviate.filter(u"select RagioneSociale"_s), IsEmpty());
    // The offscreen platform leaves it to us to wake the screen under a dialog that closed.
    mSchermata->activateWindow();
    EXPECT_TRUE(QTest::qWaitFor([&] { return c("txtFilSped")->hasFocus(); }));
}

TEST_P(RichiamoCliente, IlClienteRestaDopoUnaRigaCheNonSiRichiamaESiPulisceLasciandoIlNumero)
{
    mBase.esegui(u"update letve00f set lecdve=null"_s);
    apri();
    clicca("chkRicerca");
    scrivi("txtCodiceCli", u"1001"_s);
    lascia("txtCodiceCli");
    nelDialogo([](QDialog& dialogo) {
        auto* griglia = trova<QTableView>(dialogo, u"Griglia"_s);
        griglia->setFocus();
        QTest::keyClick(griglia, Qt::Key_Return);
    });
    clicca("cmdRicGiac");
    EXPECT_TRUE(
        mostrato("lblStato").endsWith(u": non si può richiamare, manca il vettore, la linea o la filiale."_s))
        << mostrato("lblStato").toStdString();
    EXPECT_EQ(mostrato("txtCodiceCli"), u"1001"_s) << "another row of his may follow";
    EXPECT_EQ(mostrato("barCliente"), u"Ferramenta Lombarda S.r.l."_s);
    mSchermata->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(mSchermata));
    clicca("chkRicerca");
    c("txtNGiace")->setFocus();
    lascia("txtNGiace");
    EXPECT_EQ(mostrato("txtCodiceCli"), QString());
    EXPECT_EQ(mostrato("barCliente"), QString());
}

TEST_P(RichiamoCliente, IlCodiceClienteSiControllaComeAllaRegistrazione)
{
    apri();
    clicca("chkRicerca");
    scrivi("txtCodiceCli", u"abc"_s);
    const auto attesa = Messaggio{u"Codice cliente assente o errato"_s, Stile::avviso, titoloApplicazione()};
    EXPECT_THAT(istruzioni([&] { lascia("txtCodiceCli"); }), IsEmpty());
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(attesa));
    scorciatoia(Qt::Key_H);
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(attesa)) << "a shortcut moves no focus";
    scrivi("txtCodiceCli", u"77"_s);
    EXPECT_THAT(istruzioni([&] { lascia("txtCodiceCli"); }),
                ElementsAre(u"select RagioneSociale from clien where Codice=77;"_s));
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(Messaggio{u"Codice Cliente Inesistente"_s,
                                                          Stile::informazione, u"Gestione Trasporti"_s}));
    scrivi("txtCodiceCli", u"1001"_s);
    lascia("txtCodiceCli");
    EXPECT_TRUE(qobject_cast<QLineEdit*>(c("txtCodiceCli"))->isReadOnly());
    clicca("chkRicerca");
    clicca("chkRicerca");
    EXPECT_FALSE(qobject_cast<QLineEdit*>(c("txtCodiceCli"))->isReadOnly()) << "another customer may come";
}

} // namespace
