// The shipment search under the keys, the pointer and a screen reader.

#include "search/bancoricerca.h"

#include "base/forme.h"
#include "support/stampa.h"

#include <QAccessible>
#include <QLineEdit>
#include <QScrollBar>
#include <QTimer>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;
using testing::ElementsAre;

class RicercaGiaTasti : public BancoRicerca
{
protected:
    /// Shows the dialog as a screen does and presses what comes, until it closes.
    static int esegui(frmRicercaGia& dialogo, std::function<void()> azione)
    {
        QTimer::singleShot(0, &dialogo, std::move(azione));
        return dialogo.exec();
    }
};
INSTANTIATE_TEST_SUITE_P(Basi, RicercaGiaTasti, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(RicercaGiaTasti, invioPrendeLaRigaCorrente)
{
    for (const Qt::Key invio : {Qt::Key_Return, Qt::Key_Enter}) {
        frmRicercaGia dialogo;
        prepara(dialogo, ModoRicerca::letteraVettura);
        const int esito = esegui(dialogo, [&] {
            EXPECT_EQ(fuoco(dialogo), u"Griglia"_s);
            tasto(dialogo, Qt::Key_Down);
            tasto(dialogo, Qt::Key_Down);
            tasto(dialogo, invio);
        });
        EXPECT_EQ(esito, QDialog::Accepted);
        EXPECT_TRUE(dialogo.accettato());
        EXPECT_EQ(dialogo.NumLetVett(), u"100"_s);
        EXPECT_EQ(dialogo.DataLetVett(), u"04/03/2025"_s);
    }
}

TEST_P(RicercaGiaTasti, ilTastoAncoraPremutoNonPrendeNulla)
{
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::letteraVettura);
    mostra(dialogo);
    QKeyEvent ripetuto(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, u"\r"_s, true);
    QCoreApplication::sendEvent(trova<QTableView>(dialogo, u"Griglia"_s), &ripetuto);
    EXPECT_TRUE(dialogo.isVisible());
}

TEST_P(RicercaGiaTasti, doppioClicPrendeLaRiga)
{
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::letteraVettura);
    const int esito = esegui(dialogo, [&] {
        auto* griglia = trova<QTableView>(dialogo, u"Griglia"_s);
        const QPoint punto = griglia->visualRect(griglia->model()->index(1, 3)).center();
        QTest::mouseClick(griglia->viewport(), Qt::LeftButton, {}, punto);
        QTest::mouseDClick(griglia->viewport(), Qt::LeftButton, {}, punto);
    });
    EXPECT_EQ(esito, QDialog::Accepted);
    EXPECT_EQ(dialogo.NumLetVett(), u"10"_s);
}

TEST_P(RicercaGiaTasti, doppioClicSulleRiconsegneNonChiude)
{
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::riconsegne);
    mostra(dialogo);
    auto* griglia = trova<QTableView>(dialogo, u"Griglia"_s);
    const QPoint punto = griglia->visualRect(griglia->model()->index(0, 0)).center();
    QTest::mouseClick(griglia->viewport(), Qt::LeftButton, {}, punto);
    QTest::mouseDClick(griglia->viewport(), Qt::LeftButton, {}, punto);
    EXPECT_TRUE(dialogo.isVisible());
    tasto(dialogo, Qt::Key_Return);
    EXPECT_FALSE(dialogo.isVisible());
    EXPECT_FALSE(dialogo.accettato());
}

TEST_P(RicercaGiaTasti, escELaCroceLascianoIValoriDelChiamante)
{
    for (const bool croce : {false, true}) {
        frmRicercaGia dialogo;
        prepara(dialogo, ModoRicerca::letteraVettura);
        dialogo.setCodiceCliente(u"2000"_s);
        dialogo.setNumLetVett(u"1005"_s);
        dialogo.setDataLetVett(u"01/02/2026"_s);
        const int esito = esegui(dialogo, [&] {
            EXPECT_EQ(aperte(), GetParam() == "mariadb" ? 0 : 1); // there are rows to read
            tasto(dialogo, Qt::Key_Down);
            if (croce)
                dialogo.close();
            else
                tasto(dialogo, Qt::Key_Escape);
        });
        EXPECT_EQ(esito, QDialog::Rejected);
        EXPECT_FALSE(dialogo.accettato());
        EXPECT_EQ(dialogo.NumLetVett(), u"1005"_s);
        EXPECT_EQ(dialogo.DataLetVett(), u"01/02/2026"_s);
        EXPECT_EQ(aperte(), 0);
    }
}

TEST_P(RicercaGiaTasti, invioNelCampoCercaEPoiInvioPrende)
{
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::letteraVettura);
    const int esito = esegui(dialogo, [&] {
        scrivi(dialogo, u"txtValore"_s, u"100"_s);
        tasto(dialogo, Qt::Key_Return);
        ASSERT_TRUE(dialogo.isVisible());
        EXPECT_THAT(colonna(dialogo, u"Num_Ldv"_s), ElementsAre(u"100"_s, u"900"_s, u"950"_s));
        EXPECT_EQ(fuoco(dialogo), u"Griglia"_s);
        tasto(dialogo, Qt::Key_Return);
    });
    EXPECT_EQ(esito, QDialog::Accepted);
    EXPECT_EQ(dialogo.NumLetVett(), u"100"_s);
}

TEST_P(RicercaGiaTasti, invioSuUnaDataAMetaLoDice)
{
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::giacenze);
    mostra(dialogo);
    scrivi(dialogo, u"txtAnnoData"_s, u"0104"_s);
    EXPECT_EQ(trova<QLineEdit>(dialogo, u"txtAnnoData"_s)->displayText(), u"01/04/____"_s);
    tasto(dialogo, Qt::Key_Return);
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Inserire una data valida."_s));
    EXPECT_TRUE(dialogo.isVisible());
}

TEST_P(RicercaGiaTasti, tabPassaDaiCampiAllElenco)
{
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::letteraVettura);
    mostra(dialogo);
    QStringList giro;
    for (int passo = 0; passo < 5; ++passo) {
        tasto(dialogo, Qt::Key_Tab);
        giro += fuoco(dialogo);
    }
    EXPECT_THAT(giro, ElementsAre(u"cmdSeleziona"_s, u"txtValore"_s, u"txtAnnoData"_s, u"cmdVisualizza"_s,
                                  u"Griglia"_s));
}

TEST_P(RicercaGiaTasti, scorrendoSiLeggeIlResto)
{
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::letteraVettura);
    dialogo.setCodiceCliente(u"2000"_s);
    mostra(dialogo);
    EXPECT_EQ(righe(dialogo), u"256 righe lette, continua…"_s);
    tasto(dialogo, Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(righe(dialogo), u"512 righe lette, continua…"_s);
    auto* griglia = trova<QTableView>(dialogo, u"Griglia"_s);
    QTest::qWait(0);
    griglia->verticalScrollBar()->setValue(griglia->verticalScrollBar()->maximum());
    EXPECT_EQ(righe(dialogo), u"600 righe"_s);
    // The row that was current is the one that is taken.
    tasto(dialogo, Qt::Key_Return);
    EXPECT_EQ(dialogo.NumLetVett(), u"1256"_s);
}

TEST_P(RicercaGiaTasti, iTestiStraniNonRomponoNulla)
{
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::riferimento);
    mostra(dialogo);
    // A text that would end its place gives the empty list; every other is compared as it is.
    const QString rotta = u"O'BRIEN"_s;
    for (const QString& testo :
         {rotta, u"%"_s, u"_"_s, u"\\"_s, u"O''BRIEN"_s, u"🚚"_s, u"\"; --"_s, QString(1000, u'z')}) {
        istruzioni();
        trova<QLineEdit>(dialogo, u"txtValore"_s)->setText(testo);
        premi(dialogo, u"cmdVisualizza"_s);
        const QStringList inviate = istruzioni();
        EXPECT_EQ(inviate.size(), testo == rotta ? 0 : 1) << testo.left(20).toStdString();
        for (const QString& inviata : inviate)
            EXPECT_TRUE(inviata.contains(u"lerife >='%1' and"_s.arg(testo))) << inviata.toStdString();
        const bool vuoto = trova<QTableView>(dialogo, u"Griglia"_s)->model()->rowCount() == 0;
        EXPECT_EQ(mMessaggi.prendi().size(), vuoto ? 1U : 0U) << testo.left(20).toStdString();
        EXPECT_EQ(righe(dialogo).startsWith(u"Ricerca non riuscita"_s), testo == rotta);
    }
}

TEST_P(RicercaGiaTasti, leFormeLaConosconoFinchEAperta)
{
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::letteraVettura);
    const int esito = esegui(dialogo, [] { Forme::delThread()->scarica(u"frmRicercaGia"_s); });
    EXPECT_EQ(esito, QDialog::Rejected);
}

namespace {

/// What a screen reader asks for when it is told of a change.
void interroga(QAccessibleEvent* evento)
{
    QAccessibleInterface* oggetto = evento->accessibleInterface();
    if (!oggetto || !oggetto->isValid())
        return;
    oggetto->text(QAccessible::Name);
    oggetto->state();
    if (QAccessibleInterface* conFuoco = oggetto->focusChild())
        conFuoco->text(QAccessible::Name);
    for (int figlio = 0; figlio < std::min(oggetto->childCount(), 64); ++figlio) {
        if (QAccessibleInterface* parte = oggetto->child(figlio)) {
            parte->text(QAccessible::Name);
            parte->state();
        }
    }
}

} // namespace

TEST_P(RicercaGiaTasti, ilLettoreDiSchermoSegueLElenco)
{
    QAccessible::setActive(true);
    const auto prima = QAccessible::installUpdateHandler(interroga);
    frmRicercaGia dialogo;
    prepara(dialogo, ModoRicerca::letteraVettura);
    dialogo.setCodiceCliente(u"2000"_s);
    mostra(dialogo);
    auto* griglia = trova<QTableView>(dialogo, u"Griglia"_s);
    QAccessibleInterface* tabella = QAccessible::queryAccessibleInterface(griglia);
    ASSERT_TRUE(tabella);
    for (int pagina = 0; pagina < 3; ++pagina) {
        EXPECT_TRUE(griglia->currentIndex().isValid());
        QTest::keyClick(griglia, Qt::Key_End, Qt::ControlModifier);
        QTest::keyClick(griglia, Qt::Key_Up);
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(griglia->model()->rowCount(), 600);
    ASSERT_TRUE(tabella->tableInterface());
    EXPECT_EQ(tabella->tableInterface()->rowCount(), 600);
    scrivi(dialogo, u"txtValore"_s, u"99999"_s);
    premi(dialogo, u"cmdVisualizza"_s);
    EXPECT_EQ(mMessaggi.prendi().size(), 1U);
    scrivi(dialogo, u"txtValore"_s, u"1100"_s);
    premi(dialogo, u"cmdVisualizza"_s);
    EXPECT_TRUE(griglia->currentIndex().isValid());
    EXPECT_EQ(griglia->model()->rowCount(), 256);
    dialogo.close();
    QAccessible::installUpdateHandler(prima);
    QAccessible::setActive(false);
}
