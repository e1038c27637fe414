#include "component/componentediprova.h"

using namespace giacenza::prove;

// The forms that the class under test finds, in place of the component's own.
void giacenza::registraForme(Forme& forme)
{
    forme.registra<SchermataFinta<nomeGiacenza>>(frmGiacenza);
    forme.registra<SchermataFinta<nomeRiconsegna>>(frmRiconsegna);
    forme.registra<SchermataFinta<nomeGestione>>(frmGestGia);
}
