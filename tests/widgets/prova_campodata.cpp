#include "widgets/campodata.h"

#include "support/stampa.h"

#include <gmock/gmock.h>

#include <QTest>

using namespace Qt::StringLiterals;
using namespace giacenza;

namespace {

class DataIntera : public testing::Test
{
protected:
    DataIntera()
    {
        mCampo.imposta(u"12/11/2026"_s);
        mFinestra.resize(300, 60);
        mFinestra.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&mFinestra));
        mCampo.setFocus();
    }

    QWidget mFinestra;
    CampoData mCampo{&mFinestra};
};

TEST_F(DataIntera, LeCifreNuoveLaSostituiscono)
{
    for (const auto& prepara : std::initializer_list<std::function<void()>>{
             [] {}, [this] { mCampo.home(false); }, [this] { mCampo.end(false); },
             [this] { mCampo.imposta(u"13/11/2026"_s); }}) {
        prepara();
        QTest::keyClicks(&mCampo, u"05"_s);
        EXPECT_EQ(mCampo.testo(), u"05/__/____"_s);
        QTest::keyClicks(&mCampo, u"122026"_s);
        EXPECT_EQ(mCampo.testo(), u"05/12/2026"_s);
    }
}

TEST_F(DataIntera, NelMezzoSiCorregge)
{
    mCampo.home(false);
    mCampo.setCursorPosition(3);
    QTest::keyClicks(&mCampo, u"0"_s);
    EXPECT_EQ(mCampo.testo(), u"12/01/2026"_s);
}

TEST_F(DataIntera, IlClicCheEntraLaScegliIlSecondoUnPosto)
{
    mCampo.clearFocus();
    QTest::mouseClick(&mCampo, Qt::LeftButton, {}, QPoint(20, mCampo.height() / 2));
    QTest::keyClicks(&mCampo, u"05122026"_s);
    EXPECT_EQ(mCampo.testo(), u"05/12/2026"_s);
    QTest::mouseClick(&mCampo, Qt::LeftButton, {}, QPoint(20, mCampo.height() / 2));
    EXPECT_FALSE(mCampo.hasSelectedText());
}

TEST_F(DataIntera, UnaDataDaGuardareNonSiTocca)
{
    mCampo.setReadOnly(true);
    mCampo.home(false);
    QTest::keyClicks(&mCampo, u"05"_s);
    EXPECT_EQ(mCampo.testo(), u"12/11/2026"_s);
}

} // namespace
