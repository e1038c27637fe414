#include "dialogs/frmCalendario.h"

#include "base/orologio.h"
#include "support/modale.h"
#include "support/stampa.h"
#include "support/trova.h"

#include <gmock/gmock.h>

#include <QCalendarWidget>
#include <QPointer>
#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QToolButton>
#include <QWindow>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;

namespace {

const QDate oggiDiProva(2026, 5, 20); // a Wednesday
const QDate impostata(2026, 2, 10);

class Calendario : public testing::Test
{
protected:
    Calendario() { impostaOggi(oggiDiProva); }
    ~Calendario() override { impostaOggi({}); }

    void apri()
    {
        mFinestra.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&mFinestra));
    }

    QTableView* giorni() { return trova<QTableView>(mFinestra, u"qt_calendar_calendarview"_s); }

    /// Where a day of the shown month stands; the grid shows the numbers of the days.
    void clicSuGiorno(int giorno)
    {
        const QAbstractItemModel* modello = giorni()->model();
        bool nelMese = false;
        for (int riga = 0; riga < modello->rowCount(); ++riga) {
            for (int colonna = 0; colonna < modello->columnCount(); ++colonna) {
                const QModelIndex casella = modello->index(riga, colonna);
                const QString testo = casella.data().toString();
                nelMese = nelMese || testo == u"1"_s;
                if (!nelMese || testo != QString::number(giorno))
                    continue;
                QTest::mouseClick(giorni()->viewport(), Qt::LeftButton, {},
                                  giorni()->visualRect(casella).center());
                return;
            }
        }
        FAIL() << "nessuna casella per il giorno " << giorno;
    }

    frmCalendario mFinestra;
    QCalendarWidget* mCalendario = trova<QCalendarWidget>(mFinestra, u"Calendario"_s);
};

} // namespace

TEST_F(Calendario, siApreSullaDataDataOSuOggi)
{
    mFinestra.setDataAttuale(impostata);
    EXPECT_EQ(mCalendario->selectedDate(), impostata);
    mFinestra.setDataAttuale({});
    EXPECT_EQ(mCalendario->selectedDate(), oggiDiProva);
    EXPECT_FALSE(mFinestra.DataAttuale());
    mFinestra.setDataAttuale(QDate());
    EXPECT_EQ(mCalendario->selectedDate(), oggiDiProva);
    EXPECT_FALSE(mFinestra.DataAttuale());
    mFinestra.setDataAttuale(QDate(9999, 12, 31));
    EXPECT_EQ(mCalendario->selectedDate(), QDate(9999, 12, 31));
    mFinestra.setDataAttuale(QDate(1900, 1, 1));
    EXPECT_EQ(mCalendario->selectedDate(), QDate(1900, 1, 1));
}

TEST_F(Calendario, parlaItalianoELaSettimanaCominciaDiLunedi)
{
    mFinestra.setDataAttuale(oggiDiProva);
    apri();
    EXPECT_EQ(trova<QToolButton>(mFinestra, u"qt_calendar_monthbutton"_s)->text(), u"maggio"_s);
    const QAbstractItemModel* modello = giorni()->model();
    QStringList intestazioni;
    for (int colonna = 0; colonna < modello->columnCount(); ++colonna)
        intestazioni += modello->index(0, colonna).data().toString();
    intestazioni.removeAll(QString());
    EXPECT_EQ(intestazioni,
              (QStringList{u"lun"_s, u"mar"_s, u"mer"_s, u"gio"_s, u"ven"_s, u"sab"_s, u"dom"_s}));
}

TEST_F(Calendario, unClicSuUnGiornoPrendeEChiude)
{
    mFinestra.setDataAttuale(impostata);
    apri();
    EXPECT_FALSE(mFinestra.scelta());
    clicSuGiorno(17);
    EXPECT_FALSE(mFinestra.isVisible());
    EXPECT_TRUE(mFinestra.scelta());
    EXPECT_EQ(mFinestra.DataAttuale(), QDate(2026, 2, 17));
    EXPECT_EQ(mFinestra.result(), QDialog::Accepted);
}

TEST_F(Calendario, leFrecceNonPrendonoInvioSi)
{
    mFinestra.setDataAttuale(impostata);
    apri();
    ASSERT_TRUE(giorni()->hasFocus());
    QTest::keyClick(giorni(), Qt::Key_Right);
    QTest::keyClick(giorni(), Qt::Key_Down);
    QTest::keyClick(giorni(), Qt::Key_PageDown);
    EXPECT_TRUE(mFinestra.isVisible());
    EXPECT_EQ(mFinestra.DataAttuale(), impostata);
    QTest::keyClick(giorni(), Qt::Key_Return);
    EXPECT_FALSE(mFinestra.isVisible());
    EXPECT_EQ(mFinestra.DataAttuale(), QDate(2026, 3, 18));
}

TEST_F(Calendario, cambiareMeseEAnnoNonPrende)
{
    mFinestra.setDataAttuale(impostata);
    apri();
    QTest::mouseClick(trova<QToolButton>(mFinestra, u"qt_calendar_nextmonth"_s), Qt::LeftButton);
    QTest::keyClicks(giorni(), u"12"_s);
    EXPECT_TRUE(mFinestra.isVisible());
    EXPECT_EQ(mFinestra.DataAttuale(), impostata);
    EXPECT_FALSE(mFinestra.scelta());
}

TEST_F(Calendario, ilBottonePrendeOggi)
{
    mFinestra.setDataAttuale(impostata);
    apri();
    QTest::keyClick(giorni(), Qt::Key_Tab);
    QWidget* fuoco = mFinestra.focusWidget();
    for (int passi = 0; passi < 8 && fuoco->objectName() != u"cmdReset"_s; ++passi) {
        QTest::keyClick(fuoco, Qt::Key_Tab);
        fuoco = mFinestra.focusWidget();
    }
    ASSERT_EQ(fuoco->objectName(), u"cmdReset"_s);
    QTest::keyClick(fuoco, Qt::Key_Space);
    EXPECT_FALSE(mFinestra.isVisible());
    EXPECT_TRUE(mFinestra.scelta());
    EXPECT_EQ(mFinestra.DataAttuale(), oggiDiProva);
}

TEST_F(Calendario, escELaCasellaDiChiusuraLascianoLaDataComEra)
{
    for (const std::optional<QDate>& data : {std::optional(impostata), std::optional<QDate>()}) {
        mFinestra.setDataAttuale(data);
        apri();
        QTest::keyClick(giorni(), Qt::Key_Right);
        QTest::keyClick(giorni(), Qt::Key_Escape);
        EXPECT_FALSE(mFinestra.isVisible());
        EXPECT_FALSE(mFinestra.scelta());
        EXPECT_EQ(mFinestra.DataAttuale(), data);

        apri();
        EXPECT_EQ(mCalendario->selectedDate(), data.value_or(oggiDiProva));
        QTest::keyClick(giorni(), Qt::Key_Down);
        mFinestra.windowHandle()->close();
        EXPECT_FALSE(mFinestra.isVisible());
        EXPECT_FALSE(mFinestra.scelta());
        EXPECT_EQ(mFinestra.DataAttuale(), data);
    }
}

TEST_F(Calendario, riapertoDopoUnaSceltaRiparteDaQuella)
{
    mFinestra.setDataAttuale(impostata);
    apri();
    clicSuGiorno(28);
    ASSERT_TRUE(mFinestra.scelta());
    apri();
    EXPECT_FALSE(mFinestra.scelta());
    EXPECT_EQ(mCalendario->selectedDate(), QDate(2026, 2, 28));
    clicSuGiorno(1);
    EXPECT_EQ(mFinestra.DataAttuale(), QDate(2026, 2, 1));
}

TEST_F(Calendario, modaleSuUnaFinestra)
{
    QWidget padre;
    padre.show();
    frmCalendario finestra(&padre);
    finestra.setDataAttuale(impostata);
    const QuandoAperta<frmCalendario> intanto([](frmCalendario& aperta) {
        QTest::keyClick(aperta.focusWidget(), Qt::Key_Left);
        QTest::keyClick(aperta.focusWidget(), Qt::Key_Enter);
    });
    EXPECT_EQ(finestra.exec(), QDialog::Accepted);
    EXPECT_EQ(finestra.DataAttuale(), QDate(2026, 2, 9));
}

TEST_F(Calendario, ilPadreSeNeVaConLaFinestraAperta)
{
    auto* padre = new QWidget;
    padre->show();
    const QPointer<frmCalendario> finestra = new frmCalendario(padre);
    const QuandoAperta<frmCalendario> intanto([&](frmCalendario&) { delete padre; });
    finestra->exec();
    EXPECT_TRUE(finestra.isNull());
}
