#include "component/registraforme.h"

#include "component/forme.h"
#include "management/frmGestGia.h"
#include "redelivery/frmRiconsegna.h"
#include "registration/frmGiacenza.h"

namespace giacenza {

void registraForme(Forme& forme)
{
    forme.registra<frmGiacenza>(QStringLiteral("frmGiacenza"));
    forme.registra<frmGestGia>(QStringLiteral("frmGestGia"));
    forme.registra<frmRiconsegna>(QStringLiteral("frmRiconsegna"));
}

} // namespace giacenza
