#include "component/componentediprova.h"
#include "support/stampa.h"

#include <giacenza/Caso.h>

#include <gmock/gmock.h>

using namespace giacenza;
using namespace giacenza::prove;

namespace {

class MostraCasoDaFuori : public ComponenteDiProva
{
protected:
    const CasoDaMostrare mCaso{u"42"_s, u"10/11/2026"_s, u"4722"_s, u"05/11/2026"_s, u"1001"_s, u"MI"_s};
};

} // namespace

TEST_F(MostraCasoDaFuori, laGestioneRiceveNumeroEData)
{
    MostraCaso(*mClasse, SchermataCaso::gestione, mCaso);
    EXPECT_EQ(accaduto(),
              (QStringList{u"frmGestGia creata"_s, u"frmGestGia mostrata"_s,
                           u"frmGestGia.DataGiacenza=10/11/2026"_s, u"frmGestGia.NumeroGiacenza=42"_s}));
}

TEST_F(MostraCasoDaFuori, laRiconsegnaEIlResoRicevonoLaLettera)
{
    const QStringList lettera{u"frmRiconsegna.NLettVett=4722"_s, u"frmRiconsegna.DataLdv=05/11/2026"_s,
                              u"frmRiconsegna.Filiale=MI"_s, u"frmRiconsegna.NumeroGiacenza=42"_s,
                              u"frmRiconsegna.CodiceCliente=1001"_s};
    MostraCaso(*mClasse, SchermataCaso::riconsegna, mCaso);
    EXPECT_EQ(impostazioni().movimento, Movimento::riconsegna);
    EXPECT_EQ(accaduto(), (QStringList{u"frmRiconsegna creata"_s, u"frmRiconsegna mostrata"_s} + lettera));
    accaduto().clear();
    MostraCaso(*mClasse, SchermataCaso::reso, mCaso);
    EXPECT_EQ(impostazioni().movimento, Movimento::reso);
    EXPECT_EQ(accaduto(), lettera) << "the screen that is open";
}
