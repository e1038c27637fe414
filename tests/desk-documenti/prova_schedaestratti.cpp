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
#include <QSemaphore>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <functional>

using namespace giacenza;
using namespace giacenza::prove;
using giacenza::schede::FinestraEstratti;
using testing::ElementsAre;

namespace {

/// Keeps every other thread than the window's from the archive until it is opened.
class Cancello
{
public:
    /// chiuso: asked in that thread whether it is to wait already.
    explicit Cancello(std::function<bool()> chiuso = [] { return true; }) : mChiuso(std::move(chiuso)) {}

    Accesso accesso(const BancaDati& base)
    {
        Accesso con = base.accesso();
        con.traccia = [this, prima = con.traccia](EventoDati evento, const QString& testo) {
            prima(evento, testo);
            if (QThread::currentThread() == qApp->thread() || !mChiuso())
                return;
            constexpr int pazienza = 60'000; // a test that fails ends all the same
            if (mAperto.tryAcquire(1, pazienza))
                mAperto.release();
        };
        return con;
    }
    void apri() { mAperto.release(); }

private:
    std::function<bool()> mChiuso;
    QSemaphore mAperto;
};

class SchedaEstratti : public DepositoDesk
{
protected:
    std::unique_ptr<FinestraEstratti> apri(const QString& cliente = {})
    {
        return apri(mBase.accesso(), cliente);
    }
    std::unique_ptr<FinestraEstratti> apri(const Accesso& accesso, const QString& cliente = {})
    {
        auto finestra = std::make_unique<FinestraEstratti>(accesso, cliente, QDate(2026, 11, 1),
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
    Cancello cancello;
    const auto finestra = apri(cancello.accesso(mBase));
    auto* esegui = trova<QPushButton>(*finestra, u"cmdEsegui"_s);
    esegui->click();
    QTest::keyClick(finestra.get(), Qt::Key_Escape);
    EXPECT_TRUE(finestra->isVisible());
    EXPECT_EQ(stato(*finestra), u"Mi fermo dopo l'estratto in corso…"_s);
    cancello.apri();
    ASSERT_TRUE(QTest::qWaitFor([&] { return esegui->isEnabled(); }, 60'000));
    EXPECT_EQ(stato(*finestra),
              u"Estratti salvati: 0 di 2. Fermato: i clienti che seguono non sono stati guardati."_s);
    EXPECT_TRUE(salvati().isEmpty());
    QTest::keyClick(finestra.get(), Qt::Key_Escape);
    EXPECT_FALSE(finestra->isVisible());
}

TEST_P(SchedaEstratti, MentreLArchivioFaAttendereLaFinestraVive)
{
    Cancello cancello;
    const auto finestra = apri(cancello.accesso(mBase));
    auto* esegui = trova<QPushButton>(*finestra, u"cmdEsegui"_s);
    esegui->click();
    int battiti = 0;
    QTimer battito;
    QObject::connect(&battito, &QTimer::timeout, [&] { ++battiti; });
    battito.start(1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return battiti >= 50; }, 10'000));
    EXPECT_FALSE(esegui->isEnabled()) << "it is still at work";
    auto* cartella = trova<QLineEdit>(*finestra, u"txtCartella"_s);
    QTest::keyClick(cartella, Qt::Key_End);
    QTest::keyClicks(cartella, u"-altra"_s);
    EXPECT_TRUE(cartella->text().endsWith(u"-altra"_s));
    cancello.apri();
    ASSERT_TRUE(QTest::qWaitFor([&] { return esegui->isEnabled(); }, 60'000));
    EXPECT_EQ(stato(*finestra), u"Estratti salvati: 2 di 2."_s);
    EXPECT_EQ(salvati().size(), 2) << "where they were asked for when it began";
}

TEST_P(SchedaEstratti, ChiudendoUnaSecondaVoltaNonRestaNienteAMeta)
{
    QStringList clienti;
    for (int codice = 2001; codice <= 2040; ++codice)
        clienti << u"('MI','%1',2026,%1,'%1',2026,'2026-11-10')"_s.arg(codice);
    mBase.esegui(u"insert into giace00f (GIFILI,GINRLV,GIANLV,GICODI,GINRGI,GIANGI,GIDTGI) values "_s +
                 clienti.join(u','));
    Cancello cancello([this] { return !salvati().isEmpty(); });
    auto finestra = apri(cancello.accesso(mBase));
    trova<QPushButton>(*finestra, u"cmdEsegui"_s)->click();
    auto* avanzamento = trova<QProgressBar>(*finestra, u"barAvanzamento"_s);
    ASSERT_EQ(avanzamento->maximum(), 42);
    EXPECT_TRUE(QTest::qWaitFor([&] { return avanzamento->value() > 0; }, 60'000));
    QTest::keyClick(finestra.get(), Qt::Key_Escape);
    QTest::keyClick(finestra.get(), Qt::Key_Escape);
    EXPECT_FALSE(finestra->isVisible());
    cancello.apri();
    finestra.reset();
    const QStringList tutti = salvati();
    EXPECT_GE(tutti.size(), 1);
    EXPECT_LT(tutti.size(), 42);
    for (const QString& nome : tutti)
        EXPECT_TRUE(testoPdf(mCartella.filePath(nome)).contains(u"Estratto giacenze"_s))
            << nome.toStdString();
    QTest::qWait(50);
    EXPECT_EQ(salvati(), tutti) << "nobody works on";
}

TEST_P(SchedaEstratti, UnArchivioSparitoSiDice)
{
    const auto finestra = apri();
    mBase.esegui(u"alter table letve00f rename to altrove"_s);
    esegui(*finestra);
    EXPECT_EQ(stato(*finestra), u"Estratti salvati: 0 di 2. Non fatti: 2."_s);
    const QStringList esiti = trova<QPlainTextEdit>(*finestra, u"txtEsiti"_s)->toPlainText().split(u'\n');
    EXPECT_TRUE(esiti.first().startsWith(u"1001 Ferramenta Lombarda S.r.l.: NON FATTO. "_s));
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
