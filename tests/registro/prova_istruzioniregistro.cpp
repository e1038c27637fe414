#include "data/istruzioniregistro.h"

#include "data/istruzioniestratto.h"
#include "support/stampa.h"

#include <giacenza/Errore.h>

#include <gmock/gmock.h>

using namespace giacenza;
using namespace Qt::StringLiterals;

namespace {

const ChiaveGiacenza caso{u"42"_s, 2026};

TEST(IstruzioniRegistro, letture)
{
    EXPECT_EQ(
        istruzioni::eventiRegistro(caso),
        u"select progressivo, istante, utente, filiale, ldv, annoldv, fatto, prima, testo from registro "
        "where GINRGI='42' and GIANGI=2026 order by progressivo;"_s);
    EXPECT_EQ(istruzioni::noteRegistro(caso),
              u"select progressivo, istante, utente, autore, testo from registro_note "
              "where GINRGI='42' and GIANGI=2026 order by progressivo;"_s);
    EXPECT_THROW(istruzioni::eventiRegistro({u"4'2"_s, 2026}), ErroreDatabase);
    EXPECT_THROW(istruzioni::noteRegistro({u"4'2"_s, 2026}), ErroreDatabase);
}

TEST(IstruzioniRegistro, unaNotaSiAggiungeSenzaDireIlConto)
{
    EXPECT_EQ(istruzioni::nuovaNota(),
              u"insert into registro_note (GINRGI, GIANGI, autore, testo) values (?,?,?,?)"_s);
}

TEST(IstruzioniRegistro, preparazione)
{
    EXPECT_EQ(istruzioni::versioneRegistro(), u"select coalesce(max(versione),0) from registro_versione"_s);
    EXPECT_EQ(istruzioni::nuovaVersione(), u"insert into registro_versione (versione) values (?)"_s);
    EXPECT_EQ(istruzioni::codaRegistro(), u"select get_lock(concat('registro_giacenza.', database()), 10)"_s);
    EXPECT_EQ(istruzioni::ruoloRegistro(), u"create role if not exists registro_giacenza"_s);
    EXPECT_EQ(istruzioni::contoCorrente(), u"select current_user()"_s);
    EXPECT_EQ(istruzioni::nomeBase(), u"select database()"_s);
    EXPECT_EQ(istruzioni::triggerRegistro(),
              u"select trigger_name, definer from information_schema.triggers "
              "where trigger_schema=database() and trigger_name like 'registro\\_%' order by trigger_name"_s);
    EXPECT_EQ(istruzioni::contiPostazioni(),
              u"select grantee from information_schema.column_privileges "
              "where table_schema=database() and table_name='giace00f' and column_name='GINRGI' and "
              "privilege_type='INSERT' union select grantee from information_schema.table_privileges "
              "where table_schema=database() and table_name='giace00f' and privilege_type='INSERT' "
              "order by grantee"_s);
    EXPECT_EQ(istruzioni::contiSullaBase(),
              u"select distinct grantee from information_schema.schema_privileges "
              "where database() like table_schema and "
              "privilege_type in ('INSERT','UPDATE','DELETE','DROP','ALTER') and "
              "grantee<>concat(quote(substring_index(current_user(),'@',1)),'@',"
              "quote(substring_index(current_user(),'@',-1))) order by grantee"_s);
}

TEST(IstruzioniEstratto, letture)
{
    EXPECT_EQ(
        istruzioni::clientiConAperte(),
        u"select GICODI, RagioneSociale, count(*) as aperte from giace00f left join clien on GICODI=Codice "
        "where GIDTBF is null group by GICODI, RagioneSociale order by RagioneSociale, GICODI"_s);
    EXPECT_EQ(
        istruzioni::giacenzeCliente(),
        u"select giace00f.*, ledtlv, ledest, lelocd, leprod, lerife, lecoll, lepeso "
        "from giace00f left join letve00f on lefili=gifili and lenrlv=ginrlv and leanlv=gianlv "
        "where GICODI=? and GIDTGI<=? and (GIDTBF is null or GIDTBF>=?) order by GIDTGI, GIANGI, GINRGI"_s);
    EXPECT_EQ(istruzioni::ldvCollegate(),
              u"select lefili, lenrlv, leanlv, ledtlv, lerico, lenote, LEDTCO from letve00f "
              "where LERFGI=? and LEANGI=? order by ledtlv, leanlv, lenrlv"_s);
}

} // namespace
