#include "data/istruzioniregistro.h"

#include "database/sql.h"

using namespace Qt::StringLiterals;

namespace giacenza::istruzioni {

QString eventiRegistro(const ChiaveGiacenza& chiave)
{
    return u"select progressivo, istante, utente, filiale, ldv, annoldv, fatto, prima, testo from registro "
           "where GINRGI='%1' and GIANGI=%2 order by progressivo;"_s.arg(sql::testo(chiave.numero),
                                                                         QString::number(chiave.anno));
}

QString noteRegistro(const ChiaveGiacenza& chiave)
{
    return u"select progressivo, istante, utente, autore, testo from registro_note "
           "where GINRGI='%1' and GIANGI=%2 order by progressivo;"_s.arg(sql::testo(chiave.numero),
                                                                         QString::number(chiave.anno));
}

QString nuovaNota()
{
    return u"insert into registro_note (GINRGI, GIANGI, autore, testo) values (?,?,?,?)"_s;
}

QString versioneRegistro()
{
    return u"select coalesce(max(versione),0) from registro_versione"_s;
}

QString nuovaVersione()
{
    return u"insert into registro_versione (versione) values (?)"_s;
}

QString codaRegistro()
{
    return u"select get_lock(concat('registro_giacenza.', database()), 10)"_s;
}

QString ruoloRegistro()
{
    return u"create role if not exists registro_giacenza"_s;
}

QString contoCorrente()
{
    return u"select current_user()"_s;
}

QString triggerRegistro()
{
    return u"select trigger_name, definer from information_schema.triggers "
           "where trigger_schema=database() and trigger_name like 'registro\\_%' order by trigger_name"_s;
}

QString contiPostazioni()
{
    return u"select grantee from information_schema.column_privileges "
           "where table_schema=database() and table_name='giace00f' and column_name='GINRGI' and "
           "privilege_type='INSERT' union select grantee from information_schema.table_privileges "
           "where table_schema=database() and table_name='giace00f' and privilege_type='INSERT' "
           "order by grantee"_s;
}

QString contiSullaBase()
{
    // The base's name in a grant may hold "_" and "%" as patterns.
    return u"select distinct grantee from information_schema.schema_privileges "
           "where database() like table_schema and "
           "privilege_type in ('INSERT','UPDATE','DELETE','DROP','ALTER') and "
           "grantee<>concat(quote(substring_index(current_user(),'@',1)),'@',"
           "quote(substring_index(current_user(),'@',-1))) order by grantee"_s;
}

QString nomeBase()
{
    return u"select database()"_s;
}

} // namespace giacenza::istruzioni
