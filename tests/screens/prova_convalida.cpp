#include "screens/convalida.h"

#include <QApplication>
#include <QFocusEvent>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

using namespace giacenza;

namespace {

/// A screen with two checked fields and two buttons, of which one leaves.
class Convalide : public testing::Test
{
protected:
    Convalide()
    {
        auto* righe = new QVBoxLayout(mSchermata);
        for (QWidget* controllo : {static_cast<QWidget*>(mUno), static_cast<QWidget*>(mDue),
                                   static_cast<QWidget*>(mFa), static_cast<QWidget*>(mEsce)})
            righe->addWidget(controllo);
        mConvalida->aggiungi(mUno, [this]() -> Seguito {
            ++mVerifiche;
            if (!mRifiuta)
                return {};
            return [this] {
                ++mSeguiti;
                mFuocoAlSeguito = QApplication::focusWidget();
                mUno->setFocus();
            };
        });
        mConvalida->esenta(mEsce);
        QObject::connect(mFa, &QPushButton::clicked, mFa, [this] { ++mClic; });
        QObject::connect(mEsce, &QPushButton::clicked, mEsce, [this] { ++mClic; });
    }
    ~Convalide() override { delete mSchermata; }

    void SetUp() override
    {
        mSchermata->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(mSchermata));
        mUno->setFocus();
        ASSERT_TRUE(mUno->hasFocus());
    }

    void perde(Qt::FocusReason motivo)
    {
        QFocusEvent evento(QEvent::FocusOut, motivo);
        QCoreApplication::sendEvent(mUno, &evento);
        QCoreApplication::processEvents();
    }
    void preme(QWidget* bottone)
    {
        QTest::mouseClick(bottone, Qt::LeftButton);
        QCoreApplication::processEvents();
    }

    QPointer<QWidget> mSchermata = new QWidget;
    QLineEdit* mUno = new QLineEdit;
    QLineEdit* mDue = new QLineEdit;
    QPushButton* mFa = new QPushButton;
    QPushButton* mEsce = new QPushButton;
    Convalida* mConvalida = new Convalida(mSchermata);
    bool mRifiuta = true;
    int mVerifiche = 0;
    int mSeguiti = 0;
    int mClic = 0;
    QWidget* mFuocoAlSeguito = nullptr;
};

TEST_F(Convalide, UnCampoLasciatoSiVerificaEIlSeguitoVieneQuandoIlFuocoEPassato)
{
    QTest::keyClick(mUno, Qt::Key_Tab);
    EXPECT_EQ(mVerifiche, 1);
    EXPECT_EQ(mSeguiti, 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(mSeguiti, 1);
    EXPECT_EQ(mFuocoAlSeguito, mDue);
    EXPECT_TRUE(mUno->hasFocus()) << "given back";
}

TEST_F(Convalide, UnCampoCheSiVerificaRestaUnCampo)
{
    const auto segnaColTopo = [this] {
        mUno->setText(QStringLiteral("scritto"));
        mUno->deselect();
        QTest::mouseDClick(mUno, Qt::LeftButton);
        return mUno->selectedText() == mUno->text();
    };
    int finiti = 0;
    QObject::connect(mUno, &QLineEdit::editingFinished, mUno, [&finiti] { ++finiti; });
    EXPECT_TRUE(segnaColTopo());
    preme(mFa);
    EXPECT_EQ(mSeguiti, 1) << "refused, and the click swallowed";
    EXPECT_EQ(finiti, 1) << "the field is told itself that the focus went";
    EXPECT_TRUE(segnaColTopo()) << "the next click is not swallowed";
}

TEST_F(Convalide, UnAltraFinestraEUnMenuNonFannoVerificare)
{
    perde(Qt::ActiveWindowFocusReason);
    perde(Qt::PopupFocusReason);
    EXPECT_EQ(mVerifiche, 0);
    mRifiuta = false;
    perde(Qt::OtherFocusReason);
    EXPECT_EQ(mVerifiche, 1);
}

TEST_F(Convalide, IlProgrammaCheDisabilitaIlCampoNonFaVerificare)
{
    mUno->setEnabled(false);
    QCoreApplication::processEvents();
    EXPECT_FALSE(mUno->hasFocus());
    EXPECT_EQ(mVerifiche, 0);
}

TEST_F(Convalide, IlRifiutoInghiotteIlClicCheLoHaCausatoENonIlSuccessivo)
{
    preme(mFa);
    EXPECT_EQ(mSeguiti, 1);
    EXPECT_EQ(mClic, 0);
    EXPECT_TRUE(mUno->hasFocus());
    mRifiuta = false;
    preme(mFa);
    EXPECT_EQ(mClic, 1);
}

TEST_F(Convalide, CioCheVaBeneNonInghiotteIlClic)
{
    mRifiuta = false;
    preme(mFa);
    EXPECT_EQ(mVerifiche, 1);
    EXPECT_EQ(mClic, 1);
}

TEST_F(Convalide, UscendoNonSiVerifica)
{
    preme(mEsce);
    EXPECT_EQ(mVerifiche, 0);
    EXPECT_EQ(mClic, 1);
    mUno->setFocus();
    mConvalida->sospendi();
    QTest::keyClick(mUno, Qt::Key_Tab);
    EXPECT_EQ(mVerifiche, 0);
}

TEST_F(Convalide, IlSeguitoCheMuoveIlFuocoNonFaVerificareDiNuovo)
{
    int verificheDue = 0;
    mConvalida->aggiungi(mDue, [&verificheDue]() -> Seguito {
        ++verificheDue;
        return {};
    });
    QTest::keyClick(mUno, Qt::Key_Tab);
    QCoreApplication::processEvents();
    EXPECT_EQ(mVerifiche, 1);
    EXPECT_EQ(verificheDue, 0) << "the refusal took the focus back from it";
    QTest::keyClick(mUno, Qt::Key_Tab);
    QCoreApplication::processEvents();
    EXPECT_EQ(mVerifiche, 2) << "and the next leaving is checked again";
}

TEST_F(Convalide, UnaScorciatoiaChiedeDelCampoCheHaIlFuoco)
{
    EXPECT_TRUE(mConvalida->verificaCorrente());
    EXPECT_EQ(mVerifiche, 1);
    mRifiuta = false;
    EXPECT_FALSE(mConvalida->verificaCorrente());
    mDue->setFocus();
    mVerifiche = 0;
    EXPECT_FALSE(mConvalida->verificaCorrente());
    EXPECT_EQ(mVerifiche, 0);
}

TEST_F(Convalide, LaSchermataPuoSparireNelSeguito)
{
    mConvalida->aggiungi(mDue, [this]() -> Seguito { return [this] { delete mSchermata; }; });
    mRifiuta = false;
    mDue->setFocus();
    QCoreApplication::processEvents();
    preme(mFa);
    EXPECT_TRUE(mSchermata.isNull());
    QPushButton altro;
    altro.show();
    QObject::connect(&altro, &QPushButton::clicked, &altro, [this] { ++mClic; });
    preme(&altro);
    EXPECT_EQ(mClic, 1) << "clicks are no longer swallowed";
}

} // namespace
