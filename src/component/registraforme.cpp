#include "component/registraforme.h"

#include "base/forme.h"
#include "management/frmGestGia.h"
#include "redelivery/frmRiconsegna.h"
#include "registration/frmGiacenza.h"

using namespace Qt::StringLiterals;

namespace giacenza {

void registraForme(Forme& forme)
{
    forme.registra<frmGiacenza>(u"frmGiacenza"_s);
    forme.registra<frmGestGia>(u"frmGestGia"_s);
    forme.registra<frmRiconsegna>(u"frmRiconsegna"_s);
}

} // namespace giacenza
