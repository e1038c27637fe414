#include "finestra.h"

#include "giacenza_finta.h"
#include "support/stampa.h"

#include <QAction>
#include <QHeaderView>
#include <QLineEdit>
#include <QSettings>
#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using deposito::Finestra;

namespace {

const QString archivio = u"DRIVER={SQLite3};Database=/dati/giacenza.db"_s;

/// The window, closed and opened again.
class ProvaRicordi : public testing::Test
{
protected:
    ProvaRicordi()
    {
        QSettings().clear();
        giacenzaFinta() = {};
        apri();
    }
    ~ProvaRicordi() override { QSettings().clear(); }

    void apri()
    {
        mFinestra = std::make_unique<Finestra>(deposito::Opzioni{archivio, u"/dati/g.ini"_s, {}});
        mFinestra->show();
        mFinestra->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(mFinestra.get()));
    }
    void riapri()
    {
        mFinestra->close();
        apri();
    }
    template<class Oggetto>
    Oggetto& figlio(const char16_t* nome)
    {
        auto* trovato = mFinestra->findChild<Oggetto*>(QString::fromUtf16(nome));
        if (!trovato)
            throw std::runtime_error("manca " + QString::fromUtf16(nome).toStdString());
        return *trovato;
    }

    std::unique_ptr<Finestra> mFinestra;
};

} // namespace

TEST_F(ProvaRicordi, riaperta_e_come_fu_lasciata)
{
    auto* testata = figlio<QTableView>(u"tabCasi").horizontalHeader();
    mFinestra->resize(1100, 650);
    testata->moveSection(0, 3);
    testata->resizeSection(1, 222);
    testata->hideSection(2);
    figlio<QTableView>(u"tabCasi").sortByColumn(6, Qt::DescendingOrder);
    QTest::keyClick(mFinestra.get(), Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(&figlio<QLineEdit>(u"txtFiltro"), u"rossi"_s);
    riapri();
    testata = figlio<QTableView>(u"tabCasi").horizontalHeader();
    EXPECT_EQ(mFinestra->size(), QSize(1100, 650));
    EXPECT_EQ(testata->visualIndex(0), 3);
    EXPECT_NEAR(testata->sectionSize(1), 222, 1);
    EXPECT_TRUE(testata->isSectionHidden(2));
    EXPECT_EQ(testata->sortIndicatorSection(), 6);
    EXPECT_EQ(figlio<QLineEdit>(u"txtFiltro").text(), u"rossi"_s);
    figlio<QAction>(u"azRipristinaColonne").trigger();
    EXPECT_EQ(testata->visualIndex(0), 0);
    EXPECT_FALSE(testata->isSectionHidden(2));
    riapri();
    EXPECT_EQ(figlio<QTableView>(u"tabCasi").horizontalHeader()->visualIndex(0), 0);
    QSettings().setValue(u"finestra/geometria"_s, u"storta"_s);
    QSettings().setValue(u"desk/colonne"_s, QByteArray("\0\xff", 2));
    mFinestra = std::make_unique<Finestra>(deposito::Opzioni{archivio, {}, {}});
    EXPECT_FALSE(figlio<QTableView>(u"tabCasi").horizontalHeader()->isSectionHidden(2));
}
