#include "data/istruzioniestratto.h"

using namespace Qt::StringLiterals;

namespace giacenza::istruzioni {

QString clientiConAperte()
{
    return u"select GICODI, RagioneSociale, count(*) as aperte from giace00f left join clien on "
           u"GICODI=Codice "
           "where GIDTBF is null group by GICODI, RagioneSociale order by RagioneSociale, GICODI"_s;
}

QString giacenzeCliente()
{
    return u"select giace00f.*, ledtlv, ledest, lelocd, leprod, lerife, lecoll, lepeso "
           "from giace00f left join letve00f on lefili=gifili and lenrlv=ginrlv and leanlv=gianlv "
           "where GICODI=? and GIDTGI<=? and (GIDTBF is null or GIDTBF>=?) order by GIDTGI, GIANGI, GINRGI"_s;
}

QString ldvCollegate()
{
    return u"select lefili, lenrlv, leanlv, ledtlv, lerico, lenote, LEDTCO from letve00f "
           "where LERFGI=? and LEANGI=? order by ledtlv, leanlv, lenrlv"_s;
}

} // namespace giacenza::istruzioni
