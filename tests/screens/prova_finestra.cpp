// What every screen is as a window of the host's, and its status line.

#include "screens/aspetto.h"
#include "screens/tutteleschermate.h"
#include "support/stampa.h"
#include "support/trova.h"

#include <QLabel>
#include <QTest>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace giacenza;
using namespace giacenza::prove;

namespace {

/// Counts the changes of a style.
class ContaStili : public QObject
{
public:
    using QObject::QObject;
    bool eventFilter(QObject*, QEvent* evento) override
    {
        mQuanti += evento->type() == QEvent::StyleChange ? 1 : 0;
        return false;
    }
    int mQuanti = 0;
};

class Finestra : public testing::TestWithParam<const char*>
{
protected:
    std::unique_ptr<Schermata> mSchermata = creaSchermata(GetParam());
};

INSTANTIATE_TEST_SUITE_P(Schermate, Finestra, testing::Values("frmGiacenza", "frmGestGia", "frmRiconsegna"));

TEST_P(Finestra, ChiuderlaNonChiudeLHost)
{
    EXPECT_FALSE(mSchermata->testAttribute(Qt::WA_QuitOnClose));
}

TEST_P(Finestra, LaRigaDiStatoHaUnaRigaEDietroTuttoIlTesto)
{
    const auto* riga = trova<QLabel>(mSchermata.get(), u"lblStato"_s);
    mSchermata->stato(u"prima\nseconda"_s);
    EXPECT_EQ(riga->text(), u"prima"_s);
    EXPECT_EQ(riga->toolTip(), u"prima\nseconda"_s);
    mSchermata->stato(u"prima"_s, u"parole del driver"_s);
    EXPECT_EQ(riga->text(), u"prima"_s);
    EXPECT_EQ(riga->toolTip(), u"parole del driver"_s);
}

TEST_P(Finestra, IlNumeroDellaGiacenzaRisalta)
{
    mSchermata->show();
    const QFont numero = trova<QLabel>(mSchermata.get(), u"lblNrGia"_s)->font();
    EXPECT_TRUE(numero.bold());
    EXPECT_DOUBLE_EQ(numero.pointSizeF(), mSchermata->font().pointSizeF() * 1.15);
}

TEST_P(Finestra, OgniCambioDiStileSiSegueEFinisce)
{
    mSchermata->show();
    ContaStili conta;
    mSchermata->installEventFilter(&conta);
    for (int volta = 0; volta < 3; ++volta) {
        mSchermata->setStyleSheet({});
        EXPECT_TRUE(QTest::qWaitFor([&] { return mSchermata->styleSheet() == aspettoSchermata(); }));
        QCoreApplication::processEvents(); // following it is a change, too
        conta.mQuanti = 0;
        QTest::qWait(1);
        EXPECT_EQ(conta.mQuanti, 0);
    }
}

TEST_P(Finestra, UnEtichettaNonSiAllargaPerQuelloCheMostra)
{
    mSchermata->show();
    auto* numero = trova<QLabel>(mSchermata.get(), u"lblNrGia"_s);
    const auto larghezza = [&](const QString& testo) {
        numero->setText(testo);
        mSchermata->setStyleSheet({}); // which has the fields measured anew
        EXPECT_TRUE(QTest::qWaitFor([&] { return mSchermata->styleSheet() == aspettoSchermata(); }));
        return numero->minimumWidth();
    };
    const int corto = larghezza(u"1"_s);
    EXPECT_GT(corto, 0);
    EXPECT_EQ(larghezza(u"00000000000000000000"_s), corto);
}

TEST_P(Finestra, LaGrandezzaSceltaRestaQuandoSiRimostra)
{
    mSchermata->show();
    const QSize scelta = mSchermata->minimumSizeHint();
    ASSERT_LT(scelta.height(), mSchermata->height());
    mSchermata->resize(scelta);
    mSchermata->hide();
    mSchermata->show();
    EXPECT_EQ(mSchermata->size(), scelta);
}

} // namespace
