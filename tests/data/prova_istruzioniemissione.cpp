#include "data/istruzioniemissione.h"

#include "support/stampa.h"

#include <gmock/gmock.h>

using namespace giacenza;
using namespace Qt::StringLiterals;

TEST(IstruzioniEmissione, mittente)
{
    EXPECT_EQ(istruzioni::indirizzoCliente(),
              u"select RagioneSociale, Indirizzo, CLCAP, Localita, Provincia from clien where Codice=?"_s);
}

TEST(IstruzioniEmissione, coda)
{
    EXPECT_EQ(istruzioni::codaEmittenti(),
              u"update ekelvorqzt_tabge00f set UltimoNumGiacenza=UltimoNumGiacenza"_s);
}

TEST(IstruzioniEmissione, numero)
{
    EXPECT_EQ(istruzioni::ultimoNumeroLdv(Dialetto::mariadb),
              u"select coalesce(max(cast(lenrlv as unsigned)),0) from letve00f where leanlv=? and "
              "lenrlv regexp '^[0-9]{1,18}$'"_s);
    EXPECT_EQ(istruzioni::ultimoNumeroLdv(Dialetto::sqlite),
              u"select coalesce(max(cast(lenrlv as unsigned)),0) from letve00f where leanlv=? and "
              "lenrlv not glob '*[^0-9]*' and length(lenrlv) between 1 and 18"_s);
}

TEST(IstruzioniEmissione, numeroDaColonna)
{
    EXPECT_EQ(istruzioni::colonnaNumeroLdv(),
              u"select 1 from information_schema.columns where table_schema=database() and "
              "table_name='letve00f' and column_name='lenrlv_numero' and is_generated='ALWAYS'"_s);
    EXPECT_EQ(istruzioni::ultimoNumeroLdvDaColonna(),
              u"select coalesce(max(lenrlv_numero),0) from letve00f where leanlv=?"_s);
}

TEST(IstruzioniEmissione, porto)
{
    EXPECT_EQ(istruzioni::portoPerNumero(), u"select * from porto where idPorto=?"_s);
}
