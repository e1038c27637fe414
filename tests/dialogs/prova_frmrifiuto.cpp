#include "dialogs/frmRifiuto.h"

#include "base/orologio.h"
#include "support/modale.h"
#include "support/registromessaggi.h"
#include "support/stampa.h"
#include "support/trova.h"
#include "widgets/campodata.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QClipboard>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QWindow>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const QDate oggiDiProva(2026, 5, 20);
const Messaggio dataSbagliata{u"Data rifiuto non corretta."_s, Stile::critico, u"Gestione Trasporti"_s};
const Messaggio motivoVuoto{u"Campo Motivazione Rifiuto non valorizzato."_s, Stile::critico,
                            u"Gestione Trasporti"_s};

class Rifiuto : public testing::Test
{
protected:
    Rifiuto()
    {
        impostaOggi(oggiDiProva);
        apri();
    }
    ~Rifiuto() override { impostaOggi({}); }

    void apri()
    {
        mFinestra.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&mFinestra));
        EXPECT_TRUE(mData->hasFocus());
    }

    void scriviData(const QString& cifre)
    {
        mData->setFocus();
        mData->selectAll();
        QTest::keyClick(mData, Qt::Key_Delete);
        mData->setCursorPosition(0);
        QTest::keyClicks(mData, cifre);
    }

    void scriviMotivo(const QString& testo)
    {
        mMotivo->setFocus();
        QTest::keyClicks(mMotivo, testo);
    }

    void clic(const QString& nome) { QTest::mouseClick(trova<QPushButton>(mFinestra, nome), Qt::LeftButton); }

    RegistroMessaggi mMessaggi;
    frmRifiuto mFinestra;
    CampoData* mData = trova<CampoData>(mFinestra, u"txtDataRifiuto"_s);
    QLineEdit* mMotivo = trova<QLineEdit>(mFinestra, u"txtMotivazione"_s);
};

} // namespace

TEST_F(Rifiuto, unMegabyteIncollatoSiTaglia)
{
    QApplication::clipboard()->setText(QString(1'000'000, u'x'));
    mMotivo->paste();
    EXPECT_EQ(mMotivo->text(), QString(1000, u'x'));
}

TEST_F(Rifiuto, siApreConLaDataDiOggi)
{
    EXPECT_EQ(mData->testo(), u"20/05/2026"_s);
    EXPECT_EQ(mMotivo->text(), QString());
    EXPECT_FALSE(mFinestra.Confermato());
    EXPECT_EQ(mFinestra.MotivazioneRifiuto(), QString());
}

TEST_F(Rifiuto, appenaApertoSiScriveSopraLaData)
{
    QTest::keyClicks(mFinestra.focusWidget(), u"01022026"_s);
    EXPECT_EQ(mData->testo(), u"01/02/2026"_s);
}

TEST_F(Rifiuto, confermatoDaDataEMotivo)
{
    scriviData(u"03042026"_s);
    scriviMotivo(u"merce danneggiata"_s);
    clic(u"cmdOk"_s);
    EXPECT_FALSE(mFinestra.isVisible());
    EXPECT_TRUE(mFinestra.Confermato());
    EXPECT_EQ(mFinestra.DataRifiuto(), QDate(2026, 4, 3));
    EXPECT_EQ(mFinestra.MotivazioneRifiuto(), u"merce danneggiata"_s);
    EXPECT_EQ(mFinestra.result(), QDialog::Accepted);
}

TEST_F(Rifiuto, invioNelMotivoConferma)
{
    scriviMotivo(u"assente"_s);
    QTest::keyClick(mMotivo, Qt::Key_Return);
    EXPECT_FALSE(mFinestra.isVisible());
    EXPECT_TRUE(mFinestra.Confermato());
    EXPECT_EQ(mFinestra.DataRifiuto(), oggiDiProva);
}

TEST_F(Rifiuto, laDataSbagliataSiDicePerPrimaESiSegnaTutta)
{
    for (const QString& cifre : {u"31022026"_s, u"1"_s, u"00000000"_s, u""_s, u"12052"_s}) {
        scriviData(cifre);
        const QString scritto = mData->testo();
        clic(u"cmdOk"_s);
        EXPECT_THAT(mMessaggi.prendi(), ElementsAre(dataSbagliata)) << cifre.toStdString();
        EXPECT_TRUE(mFinestra.isVisible());
        EXPECT_FALSE(mFinestra.Confermato());
        EXPECT_TRUE(mData->hasFocus());
        EXPECT_EQ(mData->testo(), scritto);
        if (!scritto.isEmpty()) {
            EXPECT_EQ(mData->selectedText(), mData->displayText());
        }
    }
}

TEST_F(Rifiuto, ilMotivoVuotoSiDiceEHaIlFuoco)
{
    clic(u"cmdOk"_s);
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(motivoVuoto));
    EXPECT_TRUE(mFinestra.isVisible());
    EXPECT_TRUE(mMotivo->hasFocus());
    EXPECT_FALSE(mFinestra.Confermato());
}

TEST_F(Rifiuto, gliSpaziSonoUnMotivo)
{
    scriviMotivo(u"  "_s);
    clic(u"cmdOk"_s);
    EXPECT_TRUE(mFinestra.Confermato());
    EXPECT_EQ(mFinestra.MotivazioneRifiuto(), u"  "_s);
}

TEST_F(Rifiuto, annullareNonControlla)
{
    const std::function<void()> modi[] = {
        [this] { clic(u"cmdAnnulla"_s); },
        [this] { QTest::keyClick(mData, Qt::Key_Escape); },
        [this] { QTest::keyClick(mMotivo, Qt::Key_Escape); },
    };
    for (const auto& modo : modi) {
        scriviData(u"99999999"_s);
        modo();
        EXPECT_FALSE(mFinestra.isVisible());
        EXPECT_FALSE(mFinestra.Confermato());
        EXPECT_EQ(mFinestra.result(), QDialog::Rejected);
        EXPECT_THAT(mMessaggi.prendi(), IsEmpty());
        apri();
        EXPECT_EQ(mData->testo(), u"20/05/2026"_s);
    }
}

TEST_F(Rifiuto, laCasellaDiChiusuraConferma)
{
    mFinestra.windowHandle()->close();
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(motivoVuoto));
    EXPECT_TRUE(mFinestra.isVisible());
    scriviMotivo(u"x"_s);
    mFinestra.windowHandle()->close();
    EXPECT_FALSE(mFinestra.isVisible());
    EXPECT_TRUE(mFinestra.Confermato());
    EXPECT_EQ(mFinestra.MotivazioneRifiuto(), u"x"_s);
}

TEST_F(Rifiuto, chiusaDiNuovoSottoIlMessaggioNonNeMostraUnAltro)
{
    mMessaggi.mentreAperto([this](QWidget* padre, const Messaggio&) {
        EXPECT_EQ(padre, &mFinestra);
        mFinestra.close();
    });
    clic(u"cmdOk"_s);
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(motivoVuoto));
    EXPECT_TRUE(mFinestra.isVisible());
}

TEST_F(Rifiuto, annullataSottoIlMessaggioRestaApertaEPoiSiConferma)
{
    mMessaggi.mentreAperto(
        [this](QWidget*, const Messaggio&) { trova<QPushButton>(mFinestra, u"cmdAnnulla"_s)->click(); });
    clic(u"cmdOk"_s);
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(motivoVuoto));
    EXPECT_TRUE(mFinestra.isVisible());
    scriviMotivo(u"x"_s);
    clic(u"cmdOk"_s);
    EXPECT_TRUE(mFinestra.Confermato());
}

TEST_F(Rifiuto, dopoUnRifiutoSiPuoCorreggereEConfermare)
{
    scriviData(u"1"_s);
    clic(u"cmdOk"_s);
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(dataSbagliata));
    QTest::keyClicks(mData, u"01052026"_s);
    EXPECT_EQ(mData->testo(), u"01/05/2026"_s);
    scriviMotivo(u"D'accordo \"no\""_s);
    clic(u"cmdOk"_s);
    EXPECT_TRUE(mFinestra.Confermato());
    EXPECT_EQ(mFinestra.DataRifiuto(), QDate(2026, 5, 1));
}

TEST_F(Rifiuto, testiOstili)
{
    const QString lungo(1000, u'x');
    for (const QString& motivo : {lungo, u"🍕 città"_s, u"' or '1'='1"_s}) {
        mMotivo->clear();
        mMotivo->insert(motivo);
        clic(u"cmdOk"_s);
        EXPECT_TRUE(mFinestra.Confermato());
        EXPECT_EQ(mFinestra.MotivazioneRifiuto(), motivo);
        apri();
        EXPECT_FALSE(mFinestra.Confermato());
        EXPECT_EQ(mFinestra.MotivazioneRifiuto(), QString());
        EXPECT_EQ(mMotivo->text(), QString());
    }
}

TEST_F(Rifiuto, conLaTastieraInOrdine)
{
    QStringList ordine;
    QWidget* fuoco = mData;
    for (int passi = 0; passi < 4; ++passi) {
        ordine += fuoco->objectName();
        QTest::keyClick(fuoco, Qt::Key_Tab);
        fuoco = mFinestra.focusWidget();
    }
    EXPECT_EQ(ordine, (QStringList{u"txtDataRifiuto"_s, u"txtMotivazione"_s, u"cmdOk"_s, u"cmdAnnulla"_s}));
    EXPECT_EQ(fuoco, mData);
}

TEST(RifiutoModale, ilPadreSeNeVaSottoIlMessaggio)
{
    RegistroMessaggi messaggi;
    auto* padre = new QWidget;
    padre->show();
    const QPointer<frmRifiuto> finestra = new frmRifiuto(padre);
    messaggi.mentreAperto([&](QWidget*, const Messaggio&) { delete padre; });
    const QuandoAperta<frmRifiuto> intanto([](frmRifiuto& aperta) { aperta.windowHandle()->close(); });
    finestra->exec();
    EXPECT_TRUE(finestra.isNull());
    EXPECT_THAT(messaggi.prendi(), ElementsAre(motivoVuoto));
}
