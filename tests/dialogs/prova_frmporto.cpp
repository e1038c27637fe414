#include "dialogs/frmPorto.h"

#include "base/impostazioni.h"
#include "dialogs/elencoporto.h"
#include "support/bancadati.h"
#include "support/cadute.h"
#include "support/modale.h"
#include "support/stampa.h"
#include "support/trova.h"

#include <gmock/gmock.h>

#include <QAbstractItemView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QWindow>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;

namespace {

class Porto : public testing::TestWithParam<std::string>
{
protected:
    Porto() { impostazioni().percorsoDatabase = mBase.stringa(); }
    ~Porto() override { impostazioni() = {}; }

    void riempi(const QStringList& righe)
    {
        mBase.esegui(u"insert into porto (idPorto, Descrizione) values "_s + righe.join(u',') + u';');
    }

    void riempi()
    {
        riempi({u"(1, 'Franco')"_s, u"(2, 'Assegnato')"_s, u"(3, 'Reso')"_s, u"(4, 'Altro')"_s});
    }

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

    void clic(const QString& nome)
    {
        auto* bottone = c<QAbstractButton>(nome);
        QTest::mouseClick(bottone, Qt::LeftButton, {}, QPoint(8, bottone->height() / 2));
    }

    BancaDati mBase{GetParam()};
    frmPorto mFinestra;
    ElencoPorto* mElenco = c<ElencoPorto>(u"cmbPorto"_s);
    QLabel* mStato = c<QLabel>(u"lblStato"_s);
};

class PortoMariadb : public Porto
{};

} // namespace

TEST_P(Porto, elencaITerminiENeConfermaUno)
{
    riempi();
    apri();
    ASSERT_EQ(mElenco->count(), 4);
    EXPECT_EQ(mElenco->itemText(0), u"1 - Franco"_s);
    EXPECT_EQ(mElenco->itemText(3), u"4 - Altro"_s);
    EXPECT_EQ(mElenco->currentIndex(), 0);
    EXPECT_TRUE(c<QRadioButton>(u"optGiacenza"_s)->isChecked());
    EXPECT_TRUE(c<QRadioButton>(u"optStampaLDV"_s)->isChecked());
    mElenco->setFocus();
    QTest::keyClick(mElenco, Qt::Key_Down);
    QTest::keyClick(mElenco, Qt::Key_Return);
    EXPECT_FALSE(mFinestra.isVisible());
    EXPECT_FALSE(mFinestra.annullato());
    EXPECT_EQ(mFinestra.result(), QDialog::Accepted);
    EXPECT_EQ(mFinestra.Porto(), 2);
    EXPECT_TRUE(mFinestra.ControlloGiacenza());
    EXPECT_TRUE(mFinestra.StampaLDV());
}

TEST_P(Porto, leDueDomandeSonoIndipendenti)
{
    riempi();
    for (const bool controllo : {true, false}) {
        for (const bool stampa : {true, false}) {
            apri();
            if (!controllo)
                clic(u"optGiacenzaNo"_s);
            if (!stampa)
                clic(u"optStampaLDVNo"_s);
            clic(u"cmdEsci"_s);
            EXPECT_EQ(mFinestra.ControlloGiacenza(), controllo);
            EXPECT_EQ(mFinestra.StampaLDV(), stampa);
        }
    }
}

TEST_P(Porto, perIlResoEIlTerzoPerPosizione)
{
    riempi({u"(10, 'a')"_s, u"(20, 'b')"_s, u"(30, 'c')"_s});
    impostazioni().movimento = Movimento::reso;
    apri();
    EXPECT_EQ(mElenco->currentIndex(), 2);
    clic(u"cmdEsci"_s);
    EXPECT_EQ(mFinestra.Porto(), 30);
    impostazioni().movimento = Movimento::riconsegna;
    apri();
    EXPECT_EQ(mElenco->currentIndex(), 0);
}

TEST_P(Porto, conMenoDiTreRigheRestaLaPrima)
{
    riempi({u"(1, 'a')"_s, u"(2, 'b')"_s});
    impostazioni().movimento = Movimento::reso;
    apri();
    EXPECT_EQ(mElenco->currentIndex(), 0);
    clic(u"cmdEsci"_s);
    EXPECT_EQ(mFinestra.Porto(), 1);
}

TEST_P(Porto, laTabellaVuotaNonFermaNulla)
{
    apri();
    EXPECT_EQ(mElenco->count(), 0);
    EXPECT_EQ(mStato->text(), QString());
    clic(u"cmdEsci"_s);
    EXPECT_FALSE(mFinestra.annullato());
    EXPECT_EQ(mFinestra.Porto(), 0);
}

TEST_P(Porto, riapertoLElencoSiRileggeEPerdeLaScelta)
{
    riempi();
    apri();
    riempi({u"(5, 'Nuovo')"_s});
    mElenco->setFocus();
    QTest::keyClick(mElenco, Qt::Key_F4);
    EXPECT_EQ(mElenco->count(), 5);
    EXPECT_EQ(mElenco->currentIndex(), -1);
    QTest::keyClick(mElenco->view(), Qt::Key_Escape);
    EXPECT_TRUE(mFinestra.isVisible());
    clic(u"cmdEsci"_s);
    EXPECT_EQ(mFinestra.Porto(), 0);
}

TEST_P(Porto, dallElencoApertoSiSceglieConLaTastiera)
{
    riempi();
    apri();
    mElenco->setFocus();
    QTest::keyClick(mElenco, Qt::Key_F4);
    QTest::keyClick(mElenco->view(), Qt::Key_End);
    QTest::keyClick(mElenco->view(), Qt::Key_Return);
    EXPECT_EQ(mElenco->currentIndex(), 3);
    QTest::keyClick(mElenco, Qt::Key_Return);
    EXPECT_FALSE(mFinestra.isVisible());
    EXPECT_EQ(mFinestra.Porto(), 4);
}

TEST_P(Porto, annullaEdEscFermanoEmissione)
{
    riempi();
    apri();
    clic(u"cmdAnnulla"_s);
    EXPECT_FALSE(mFinestra.isVisible());
    EXPECT_TRUE(mFinestra.annullato());
    apri();
    EXPECT_FALSE(mFinestra.annullato());
    QTest::keyClick(mElenco, Qt::Key_Escape);
    EXPECT_FALSE(mFinestra.isVisible());
    EXPECT_TRUE(mFinestra.annullato());
    EXPECT_EQ(mFinestra.result(), QDialog::Rejected);
}

TEST_P(Porto, laCasellaDiChiusuraConferma)
{
    riempi();
    apri();
    mFinestra.windowHandle()->close();
    EXPECT_FALSE(mFinestra.isVisible());
    EXPECT_FALSE(mFinestra.annullato());
    EXPECT_EQ(mFinestra.Porto(), 1);
    EXPECT_TRUE(mFinestra.StampaLDV());
}

TEST_P(Porto, terminiDaUnaTabellaPropriaCheNonSonoNumeri)
{
    mBase.esegui(u"drop table porto;\n"
                 "create table porto (idPorto varchar(10), Testo varchar(40), Terza integer);\n"
                 "insert into porto values ('A1', 'Franco', 7), ('B2', null, 8), (null, 'Zero', 9), "
                 "('9999999999', 'Lungo', 1);"_s);
    apri();
    ASSERT_EQ(mElenco->count(), 4);
    EXPECT_EQ(mElenco->itemText(0), u" - Zero"_s);
    EXPECT_EQ(mElenco->itemText(2), u"A1 - Franco"_s);
    EXPECT_EQ(mElenco->itemText(3), u"B2 - "_s);
    for (int riga = 0; riga < 4; ++riga) {
        mElenco->setCurrentIndex(riga);
        clic(u"cmdEsci"_s);
        EXPECT_EQ(mFinestra.Porto(), 0) << riga;
        apri();
    }
}

TEST_P(Porto, unDatabaseCheNonRispondeSiDiceENonFerma)
{
    impostazioni().percorsoDatabase = u"DRIVER={Un driver che non esiste};"_s;
    apri();
    EXPECT_EQ(mElenco->count(), 0);
    EXPECT_EQ(mStato->text(), u"I termini di porto non si leggono: Manca il driver ODBC dell'archivio."_s);
    EXPECT_TRUE(mStato->toolTip().contains(u"Can't open lib"_s)) << "the driver's words";
    impostazioni().percorsoDatabase = mBase.stringa();
    riempi();
    mElenco->showPopup();
    EXPECT_EQ(mElenco->count(), 4);
    EXPECT_EQ(mStato->text(), QString());
    mElenco->hidePopup();
    clic(u"cmdEsci"_s);
    EXPECT_FALSE(mFinestra.isVisible());
}

TEST_P(PortoMariadb, unaConnessioneCadutaMentreEraApertaNonSiVede)
{
    riempi();
    apri();
    EXPECT_GT(interrompi(mBase), 0);
    mElenco->showPopup();
    EXPECT_EQ(mElenco->count(), 4);
    EXPECT_EQ(mStato->text(), QString());
    mElenco->hidePopup();
}

TEST_P(Porto, conLaTastieraInOrdine)
{
    riempi();
    apri();
    mElenco->setFocus();
    QStringList ordine;
    QWidget* fuoco = mElenco;
    for (int passi = 0; passi < 5; ++passi) {
        ordine += fuoco->objectName();
        QTest::keyClick(fuoco, Qt::Key_Tab);
        fuoco = mFinestra.focusWidget();
    }
    EXPECT_EQ(ordine, (QStringList{u"cmbPorto"_s, u"optGiacenza"_s, u"optStampaLDV"_s, u"cmdEsci"_s,
                                   u"cmdAnnulla"_s}));
}

TEST_P(Porto, ilPadreSeNeVaConLaFinestraAperta)
{
    auto* padre = new QWidget;
    padre->show();
    const QPointer<frmPorto> finestra = new frmPorto(padre);
    const QuandoAperta<frmPorto> intanto([&](frmPorto&) { delete padre; });
    finestra->exec();
    EXPECT_TRUE(finestra.isNull());
}

INSTANTIATE_TEST_SUITE_P(Basi, PortoMariadb, testing::Values("mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);
INSTANTIATE_TEST_SUITE_P(Basi, Porto, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);
