#include "component/registraforme.h"

#include "component/forme.h"
#include "registration/frmGiacenza.h"

namespace giacenza {

void registraForme(Forme& forme)
{
    forme.registra<frmGiacenza>(QStringLiteral("frmGiacenza"));
}

} // namespace giacenza
