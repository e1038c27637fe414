#include "data/istruzioniemissione.h"

using namespace Qt::StringLiterals;

namespace giacenza::istruzioni {

QString indirizzoCliente()
{
    return u"select RagioneSociale, Indirizzo, CLCAP, Localita, Provincia from clien where Codice=?"_s;
}

QString codaEmittenti()
{
    return u"update ekelvorqzt_tabge00f set UltimoNumGiacenza=UltimoNumGiacenza"_s;
}

QString ultimoNumeroLdv(Dialetto dialetto)
{
    if (dialetto == Dialetto::sqlite)
        return u"select coalesce(max(cast(lenrlv as unsigned)),0) from letve00f where leanlv=? and "
               "lenrlv not glob '*[^0-9]*' and length(lenrlv) between 1 and 18"_s;
    return u"select coalesce(max(cast(lenrlv as unsigned)),0) from letve00f where leanlv=? and "
           "lenrlv regexp '^[0-9]{1,18}$'"_s;
}

QString colonnaNumeroLdv()
{
    return u"select 1 from information_schema.columns where table_schema=database() and "
           "table_name='letve00f' and column_name='lenrlv_numero' and is_generated='ALWAYS'"_s;
}

QString ultimoNumeroLdvDaColonna()
{
    return u"select coalesce(max(lenrlv_numero),0) from letve00f where leanlv=?"_s;
}

QString portoPerNumero()
{
    return u"select * from porto where idPorto=?"_s;
}

} // namespace giacenza::istruzioni
