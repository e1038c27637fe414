#include "data/istruzioniricerca.h"

#include "support/stampa.h"

#include <giacenza/Errore.h>

#include <gmock/gmock.h>

using namespace giacenza;
using namespace Qt::StringLiterals;

namespace {

DatiRicerca dati()
{
    DatiRicerca tutti;
    tutti.cliente = u"1001"_s;
    tutti.filiale = u"MI"_s;
    tutti.riferimento = u"RIF7"_s;
    tutti.numero = u"9"_s;
    tutti.giacenza = u"42"_s;
    tutti.annoGiacenza = u"2024"_s;
    tutti.valore = u"55"_s;
    tutti.annoCorrente = 2025;
    return tutti;
}

DatiRicerca con(const QString& annoOData)
{
    DatiRicerca tutti = dati();
    tutti.annoOData = annoOData;
    return tutti;
}

TEST(RicercaApertura, perRiferimento)
{
    const QString attesa =
        u"select lenrlv, leflbc as Bord_Inv, lerife as Numero_Rif, lerifd as Data_Rif, ledest as "
        "Destinatario, ledtlv as Data_Emissione, ginrgi as Num_Giac, giangi as Anno_giac,lerico as "
        "Riconsegna  from letve00f left join giace00f on lefili=gifili and lenrlv=ginrlv and "
        "leanlv=gianlv where lecodi=1001 and LERIFE>='RIF7' and lefili='MI' ORDER BY lerife, ledtlv;"_s;
    for (const QString& altro : {QString(), u"05/03/2024"_s, u"__/__/____"_s}) {
        EXPECT_EQ(istruzioni::ricercaApertura(ModoRicerca::riferimento, con(altro)), attesa);
    }
}

TEST(RicercaApertura, perRiferimentoEAnno)
{
    EXPECT_EQ(
        istruzioni::ricercaApertura(ModoRicerca::riferimento, con(u"2024"_s)),
        u"select lenrlv, leflbc as Bord_Inv, lerife as Numero_Rif, lerifd as Data_Rif, ledest as "
        "Destinatario, ledtlv as Data_Emissione, ginrgi as Num_Giac, giangi as Anno_giac,lerico as "
        "Riconsegna  from letve00f left join giace00f on lefili=gifili and lenrlv=ginrlv and "
        "leanlv=gianlv where lecodi=1001 and LERIFE>='RIF7' and year(LERIFD)=2024 and lefili='MI' ORDER "
        "BY lerife, ledtlv;"_s);
}

TEST(RicercaApertura, perLettera)
{
    const QString attesa =
        u"select lenrlv as Num_Ldv, ledtlv as Data_Emissione, leflbc as Bord_Inv, lerife as Numero_Rif, "
        "lerifd as Data_Rif, ledest as Destinatario,  ginrgi as Num_Giac, giangi as Anno_giac, lerico as "
        "Riconsegna from letve00f left join giace00f on lefili=gifili and lenrlv=ginrlv and leanlv=gianlv "
        "where lecodi=1001 and lefili='MI' and LENRLV>='9' ORDER BY CAST(lenrlv as unsigned), leanlv;"_s;
    for (const QString& altro : {QString(), u"05/03/2024"_s}) {
        EXPECT_EQ(istruzioni::ricercaApertura(ModoRicerca::letteraVettura, con(altro)), attesa);
    }
}

TEST(RicercaApertura, perLetteraEAnno)
{
    EXPECT_EQ(
        istruzioni::ricercaApertura(ModoRicerca::letteraVettura, con(u"2024"_s)),
        u"select lenrlv as Num_Ldv, ledtlv as Data_Emissione, leflbc as Bord_Inv, lerife as Numero_Rif, "
        "lerifd as Data_Rif, ledest as Destinatario,  ginrgi as Num_Giac, giangi as Anno_giac, lerico as "
        "Riconsegna from letve00f left join giace00f on lefili=gifili and lenrlv=ginrlv and leanlv=gianlv "
        "where lecodi=1001 and lefili='MI' and LENRLV>='9' and LEANLV=2024 ORDER BY CAST(lenrlv as "
        "unsigned), leanlv;"_s);
}

TEST(RicercaApertura, riconsegne)
{
    EXPECT_EQ(
        istruzioni::ricercaApertura(ModoRicerca::riconsegne, con(u"2020"_s)),
        u"SELECT lenrlv as Num_Ldv, ledtlv as Data_Emissione, leflbc as Bord_Inv, lerife as Numero_Rif, "
        "lerifd as Data_Rif, ledest as Destinatario, lerico as Riconsegna from (letve00f inner JOIN "
        "giace00f on lefili=gifili and lerfgi=ginrgi and leangi=giangi) where ginrgi='42' "
        "and giangi=2024;"_s);
}

TEST(RicercaApertura, giacenze)
{
    EXPECT_EQ(
        istruzioni::ricercaApertura(ModoRicerca::giacenze, con(u"2020"_s)),
        u"select ginrlv, ledtlv, Ginrgi as Giacenza, gidtgi as Data_Giac, gicodi as cod_cliente, Lerife as "
        "Rif_Mitt, Lerifd as Data_Rif_Mitt,ledest as Destinatario, GIDTBF as Buon_Fine FROM giace00f "
        "INNER join letve00f on gifili=lefili and ginrlv=lenrlv and gianlv=leanlv where giangi=2025 and "
        "letve00f.lecodi='1001';"_s);
}

TEST(RicercaVisualizza, giacenze)
{
    const QString attesa =
        u"select ginrlv, ledtlv, Ginrgi as Giacenza, gidtgi as Data_Giac, gicodi as cod_cliente, Lerife as "
        "Rif_Mitt, Lerifd as Data_Rif_Mitt,ledest as Destinatario, GIDTBF as Buon_Fine FROM giace00f "
        "INNER join letve00f on gifili=lefili and ginrlv=lenrlv and gianlv=leanlv where "
        "letve00f.Lecodi='1001' and gidtgi>='2024-03-05';"_s;
    EXPECT_EQ(istruzioni::ricercaVisualizza(ModoRicerca::giacenze, con(u"05/03/2024"_s)), attesa);
}

TEST(RicercaVisualizza, giacenzeSenzaData)
{
    for (const QString& altro : {QString(), u"2024"_s, u"31/02/2024"_s}) {
        EXPECT_THROW(istruzioni::ricercaVisualizza(ModoRicerca::giacenze, con(altro)), ErroreDatabase);
    }
}

TEST(RicercaVisualizza, lettera)
{
    EXPECT_EQ(
        istruzioni::ricercaVisualizza(ModoRicerca::letteraVettura, con(QString())),
        u"select lenrlv as Num_Ldv, ledtlv as Data_Emissione, leflbc as Bord_Inv, lerife as Numero_Rif, "
        "lerifd as Data_Rif, ledest as Destinatario,  ginrgi as Num_Giac, giangi as Anno_giac, lerico as "
        "Riconsegna from letve00f left join giace00f on lefili=gifili and lenrlv=ginrlv and leanlv=gianlv "
        "where lecodi=1001 and cast(lenrlv as unsigned) >=55 and lefili='MI' ORDER BY CAST(lenrlv as "
        "unsigned), leanlv;"_s);
}

TEST(RicercaVisualizza, letteraEAnno)
{
    EXPECT_EQ(
        istruzioni::ricercaVisualizza(ModoRicerca::letteraVettura, con(u"2024"_s)),
        u"select lenrlv as Num_Ldv, ledtlv as Data_Emissione, leflbc as Bord_Inv, lerife as Numero_Rif, "
        "lerifd as Data_Rif, ledest as Destinatario,  ginrgi as Num_Giac, giangi as Anno_giac, lerico as "
        "Riconsegna from letve00f left join giace00f on lefili=gifili and lenrlv=ginrlv and leanlv=gianlv "
        "where lecodi=1001 and cast(lenrlv as unsigned) >=55 and leanlv>='2024' and lefili='MI' ORDER BY "
        "CAST(lenrlv as unsigned), leanlv;"_s);
}

TEST(RicercaVisualizza, riferimento)
{
    const QString attesa =
        u"select lenrlv, leflbc as Bord_Inv, lerife as Numero_Rif, lerifd as Data_Rif, ledest as "
        "Destinatario, ledtlv as Data_Emissione, ginrgi as Num_Giac, giangi as Anno_giac, lerico as "
        "Riconsegna  from letve00f left join giace00f on lefili=gifili and lenrlv=ginrlv and "
        "leanlv=gianlv where lecodi=1001 and lerife >='55' and lefili='MI' ORDER BY lerife, ledtlv;"_s;
    for (const QString& altro : {QString(), u"2024"_s, u"05/03/2024"_s}) {
        EXPECT_EQ(istruzioni::ricercaVisualizza(ModoRicerca::riferimento, con(altro)), attesa);
    }
}

TEST(RicercaVisualizza, riconsegneNonSiRestringono)
{
    EXPECT_EQ(istruzioni::ricercaVisualizza(ModoRicerca::riconsegne, dati()), QString());
}

} // namespace
