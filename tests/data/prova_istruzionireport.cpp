#include "data/istruzionireport.h"

#include "support/stampa.h"

#include <giacenza/Errore.h>

#include <gmock/gmock.h>

using namespace giacenza;
using namespace Qt::StringLiterals;

namespace {

TEST(Report, giacenza)
{
    EXPECT_EQ(istruzioni::giacenzaReport(u"0012"_s, u"2015"_s),
              u"select giace00f.*, clien.RagioneSociale, clien.Indirizzo, clien.Localita, clien.Provincia, "
              "clien.CLCAP from (giace00f left join clien on GICODI=Codice) "
              "where ginrgi='0012' and giangi=2015;"_s);
}

TEST(Report, spedizione)
{
    EXPECT_EQ(istruzioni::spedizioneReport(u"MI"_s, u"0098765"_s, u"2014"_s),
              u"select letve00f.*, filiali.descrizione as filiale "
              "from (letve00f left join filiali on lefili=filiali.codice) "
              "where lefili='MI' and lenrlv='0098765' and leanlv=2014;"_s);
}

TEST(Report, valoriCheEsconoDalPosto)
{
    EXPECT_THROW(istruzioni::giacenzaReport(u"1' or '1'='1"_s, u"2015"_s), ErroreDatabase);
    EXPECT_THROW(istruzioni::giacenzaReport(u"1"_s, u"2015 or 1=1"_s), ErroreDatabase);
    EXPECT_THROW(istruzioni::giacenzaReport(u"1"_s, {}), ErroreDatabase);
    EXPECT_THROW(istruzioni::spedizioneReport(u"M'I"_s, u"1"_s, u"2015"_s), ErroreDatabase);
    EXPECT_THROW(istruzioni::spedizioneReport(u"MI"_s, u"1'"_s, u"2015"_s), ErroreDatabase);
    EXPECT_THROW(istruzioni::spedizioneReport(u"MI"_s, u"1"_s, u"x"_s), ErroreDatabase);
}

} // namespace
