#include "widgets/secondoclic.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QCursor>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QWindow>

using namespace giacenza;

namespace {

class SecondoClic : public testing::Test
{
protected:
    SecondoClic()
    {
        QApplication::setDoubleClickInterval(50);
        mBottone.resize(200, 200);
        mBottone.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&mBottone));
    }
    ~SecondoClic() override { QApplication::setDoubleClickInterval(mIntervallo); }

    /// As the window system would tell it.
    void clic(QPoint dove) { QTest::mouseClick(mBottone.windowHandle(), Qt::LeftButton, {}, dove); }

    const int mIntervallo = QApplication::doubleClickInterval();
    QPushButton mBottone;
    QSignalSpy mClic{&mBottone, &QPushButton::clicked};
    const QPoint mDove{100, 100};
};

} // namespace

TEST_F(SecondoClic, alloStessoPostoNonPreme)
{
    // Long enough for a busy machine; elsewhere than the other test's clicks, which come while it lasts.
    QApplication::setDoubleClickInterval(10'000);
    const QPoint dove{20, 20};
    QCursor::setPos(mBottone.mapToGlobal(dove));
    ignoraSecondoClic();
    clic(dove + QPoint(1, 1));
    EXPECT_EQ(mClic.size(), 0);
}

TEST_F(SecondoClic, altroveOPiuTardiPreme)
{
    QCursor::setPos(mBottone.mapToGlobal(mDove));
    ignoraSecondoClic();
    clic(mDove + QPoint(50, 0));
    EXPECT_EQ(mClic.size(), 1);
    ASSERT_TRUE(QTest::qWaitFor([this] {
        clic(mDove);
        return mClic.size() > 1;
    }));
}
