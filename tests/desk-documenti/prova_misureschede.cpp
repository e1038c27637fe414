#include "depositodesk.h"

#include "desk/schede/finestracaso.h"
#include "desk/schede/finestraconto.h"
#include "desk/schede/finestraestratti.h"

using namespace giacenza;
using namespace giacenza::prove;
using namespace giacenza::schede;

namespace {

/// A screen of 1920x1080 at 200 %, less what a window manager puts around a window.
constexpr QSize schermoPiccolo(960 - 16, 540 - 40);

class MisureSchede : public DepositoDesk
{
protected:
    static void staNelloSchermo(QWidget& finestra)
    {
        finestra.show();
        const QSize minima = finestra.minimumSizeHint();
        EXPECT_LE(minima.width(), schermoPiccolo.width()) << finestra.objectName().toStdString();
        EXPECT_LE(minima.height(), schermoPiccolo.height()) << finestra.objectName().toStdString();
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, MisureSchede, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(MisureSchede, TutteStannoInUnoSchermoPiccolo)
{
    FinestraConto conto(mBase.accesso(), mAperta, carta());
    staNelloSchermo(conto);
    FinestraConto chiusa(mBase.accesso(), mChiusa, carta());
    staNelloSchermo(chiusa);
    FinestraCaso senzaRegistro(mBase.accesso(), mAperta, carta());
    staNelloSchermo(senzaRegistro);
    conRegistro();
    FinestraCaso caso(mBase.accesso(), mAperta, carta());
    staNelloSchermo(caso);
    FinestraEstratti estratti(mBase.accesso(), {}, QDate(2026, 11, 1), QDate(2026, 11, 30), carta());
    staNelloSchermo(estratti);
}

} // namespace
