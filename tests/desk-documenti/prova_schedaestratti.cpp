#include "depositodesk.h"

#include "desk/schede/finestraestratti.h"
#include "support/albero.h"
#include "support/trova.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

using namespace giacenza;
using namespace giacenza::prove;
using giacenza::schede::FinestraEstratti;
using testing::ElementsAre;

namespace {

class SchedaEstratti : public DepositoDesk
{
protected:
    std::unique_ptr<FinestraEstratti> apri(const QString& cliente = {})
    {
        auto finestra = std::make_unique<FinestraEstratti>(mBase.accesso(), cliente, QDate(2026, 11, 1),
                                                           QDate(2026, 11, 30), carta());
        finestra->show();
        return finestra;
    }
    static QString stato(const FinestraEstratti& finestra)
    {
        return trova<QLabel>(finestra, u"lblStato"_s)->text();
    }
    static void esegui(const FinestraEstratti& finestra)
    {
        auto* tasto = trova<QPushButton>(finestra, u"cmdEsegui"_s);
        tasto->click();
        EXPECT_TRUE(QTest::qWaitFor([&] { return tasto->isEnabled(); }, 60'000));
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, SchedaEstratti, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(SchedaEstratti, TuttiIClientiAperti)
{
    const auto finestra = apri();
    auto* clienti = trova<QComboBox>(*finestra, u"cmbCliente"_s);
    ASSERT_EQ(clienti->count(), 3);
    EXPECT_EQ(clienti->currentText(), u"Tutti i clienti con giacenze aperte (2)"_s);
    EXPECT_EQ(clienti->itemText(1), u"1001 Ferramenta Lombarda S.r.l. — aperte: 1"_s);
    trova<QCheckBox>(*finestra, u"chkCsv"_s)->setChecked(true);
    esegui(*finestra);
    EXPECT_EQ(salvati().size(), 4);
    EXPECT_EQ(stato(*finestra), u"Estratti salvati: 2 di 2."_s);
    EXPECT_EQ(trova<QProgressBar>(*finestra, u"barAvanzamento"_s)->value(), 2);
    EXPECT_EQ(trova<QPlainTextEdit>(*finestra, u"txtEsiti"_s)->toPlainText().split(u'\n').size(), 2);
}

TEST_P(SchedaEstratti, UnoSoloAncheSenzaGiacenzeAperte)
{
    const auto finestra = apri(u"1003"_s);
    EXPECT_TRUE(trova<QComboBox>(*finestra, u"cmbCliente"_s)->currentText().startsWith(u"1003"_s));
    esegui(*finestra);
    EXPECT_THAT(salvati(), ElementsAre(u"Estratto giacenze 1003 2026-11-01 2026-11-30.pdf"_s));
}

TEST_P(SchedaEstratti, SiFermaDopoQuelloInCorso)
{
    const auto finestra = apri();
    auto* esegui = trova<QPushButton>(*finestra, u"cmdEsegui"_s);
    esegui->click();
    QTest::keyClick(finestra.get(), Qt::Key_Escape);
    EXPECT_TRUE(finestra->isVisible());
    ASSERT_TRUE(QTest::qWaitFor([&] { return esegui->isEnabled(); }, 60'000));
    EXPECT_EQ(stato(*finestra),
              u"Estratti salvati: 0 di 2. Fermato: i clienti che seguono non sono stati guardati."_s);
    QTest::keyClick(finestra.get(), Qt::Key_Escape);
    EXPECT_FALSE(finestra->isVisible());
}

TEST_P(SchedaEstratti, QuelloCheMancaSiDice)
{
    const auto finestra = apri();
    auto* esegui = trova<QPushButton>(*finestra, u"cmdEsegui"_s);
    trova<QCheckBox>(*finestra, u"chkPdf"_s)->setChecked(false);
    esegui->click();
    EXPECT_EQ(stato(*finestra), u"Scegliere almeno una forma: PDF, CSV o foglio di calcolo."_s);
    trova<QCheckBox>(*finestra, u"chkPdf"_s)->setChecked(true);
    trova<QLineEdit>(*finestra, u"txtCartella"_s)->clear();
    esegui->click();
    EXPECT_EQ(stato(*finestra), u"Manca la cartella in cui salvare."_s);
    trova<QLineEdit>(*finestra, u"txtA"_s)->clear();
    esegui->click();
    EXPECT_EQ(stato(*finestra), u"Il periodo non va bene: servono due date, la prima non dopo la seconda."_s);
    EXPECT_TRUE(salvati().isEmpty());
}

TEST_P(SchedaEstratti, OgniControlloHaUnNome)
{
    const auto finestra = apri();
    const AlberoAccessibile albero = alberoAccessibile(finestra.get());
    EXPECT_GE(albero.ingressi, 11);
    EXPECT_TRUE(albero.senzaNome.isEmpty()) << albero.senzaNome.join(u", "_s).toStdString();
    EXPECT_TRUE(albero.doppi.isEmpty()) << albero.doppi.join(u", "_s).toStdString();
}

} // namespace
