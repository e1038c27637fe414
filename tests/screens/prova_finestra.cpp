// What every screen is as a window of the host's, and its status line.

#include "screens/tutteleschermate.h"
#include "support/stampa.h"
#include "support/trova.h"

#include <QLabel>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;
using namespace giacenza;
using namespace giacenza::prove;

namespace {

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

} // namespace
