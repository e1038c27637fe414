#include "search/listascelta.h"

#include "support/stampa.h"

#include <gmock/gmock.h>

#include <QDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

using namespace giacenza;
using namespace Qt::StringLiterals;

namespace {

/// The list in a dialog with a default button, where a stray Enter would be seen.
class Lista : public testing::Test
{
protected:
    Lista()
    {
        mBottone.setDefault(true);
        mStrato.addWidget(&mCampo);
        mStrato.addWidget(&mLista);
        mStrato.addWidget(&mBottone);
        mFinestra.resize(300, 300);
        mFinestra.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&mFinestra));
        mCampo.setFocus();
    }

    void riempi(int quante)
    {
        for (int i = 0; i < quante; ++i)
            mLista.addItem(u"voce %1"_s.arg(i));
    }

    QListWidgetItem* presa(int chiamata = 0) { return mScelte.at(chiamata).at(0).value<QListWidgetItem*>(); }

    QDialog mFinestra;
    QVBoxLayout mStrato{&mFinestra};
    QLineEdit mCampo;
    ListaScelta mLista;
    QPushButton mBottone;
    QSignalSpy mScelte{&mLista, &ListaScelta::scelta};
    QSignalSpy mFini{&mLista, &ListaScelta::finePagina};
    QSignalSpy mClic{&mBottone, &QPushButton::clicked};
};

} // namespace

TEST_F(Lista, arrivarciConIlTastoNonSceglieENonSegna)
{
    riempi(3);
    QTest::keyClick(&mCampo, Qt::Key_Tab);
    ASSERT_TRUE(mLista.hasFocus());
    EXPECT_TRUE(mLista.selectedItems().isEmpty());
    QTest::keyClick(&mLista, Qt::Key_Return);
    EXPECT_TRUE(mScelte.isEmpty());
    EXPECT_TRUE(mClic.isEmpty());
}

TEST_F(Lista, laPrimaFrecciaSegnaLaPrimaRigaEInvioLaPrende)
{
    riempi(3);
    mLista.setFocus();
    QTest::keyClick(&mLista, Qt::Key_Down);
    EXPECT_EQ(mLista.currentRow(), 0);
    QTest::keyClick(&mLista, Qt::Key_Down);
    EXPECT_TRUE(mScelte.isEmpty());
    QTest::keyClick(&mLista, Qt::Key_Enter);
    ASSERT_EQ(mScelte.size(), 1);
    EXPECT_EQ(presa(), mLista.item(1));
    EXPECT_TRUE(mClic.isEmpty());
}

TEST_F(Lista, unClicPrendeSoloSeESuUnaRiga)
{
    riempi(2);
    QTest::mouseClick(mLista.viewport(), Qt::LeftButton, {}, mLista.visualItemRect(mLista.item(1)).center());
    ASSERT_EQ(mScelte.size(), 1);
    EXPECT_EQ(presa(), mLista.item(1));
    QTest::mouseClick(mLista.viewport(), Qt::LeftButton, {},
                      mLista.viewport()->rect().bottomRight() - QPoint(2, 2));
    QTest::mouseClick(mLista.viewport(), Qt::RightButton, {}, mLista.visualItemRect(mLista.item(0)).center());
    EXPECT_EQ(mScelte.size(), 1);
}

TEST_F(Lista, vuotaNonFaNulla)
{
    mLista.setFocus();
    QTest::keyClick(&mLista, Qt::Key_Down);
    QTest::keyClick(&mLista, Qt::Key_Return);
    EXPECT_TRUE(mScelte.isEmpty());
    EXPECT_TRUE(mClic.isEmpty());
    EXPECT_GE(mLista.righeVisibili(), 1);
}

TEST_F(Lista, diceQuandoSiArrivaInFondo)
{
    riempi(10 * mLista.righeVisibili());
    mFini.clear();
    mLista.setFocus();
    QTest::keyClick(&mLista, Qt::Key_Down);
    QTest::keyClick(&mLista, Qt::Key_PageDown);
    EXPECT_TRUE(mFini.isEmpty());
    QTest::keyClick(&mLista, Qt::Key_End);
    EXPECT_FALSE(mFini.isEmpty());
}
