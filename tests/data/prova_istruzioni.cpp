#include "data/istruzioni.h"

#include "support/stampa.h"

#include <gmock/gmock.h>

using namespace giacenza;
using namespace Qt::StringLiterals;

namespace {

const QDate giorno(2024, 3, 5);
const ChiaveSpedizione spedizione{u"MI"_s, u"0123"_s, 2023};

TEST(Spedizione, perNumeroDataFiliale)
{
    EXPECT_EQ(
        istruzioni::spedizionePerNumeroDataFiliale(u"0123"_s, giorno, u"MI"_s),
        u"SELECT letve00f.*, giace00f.*, forni.RagioneSociale as Vettore, filiali.Descrizione as filiale, "
        "codicizona.Descrizione as linea from (((letve00f LEFT JOIN giace00f on lefili=gifili and "
        "lenrlv=ginrlv and leanlv=gianlv) LEFT JOIN filiali ON lefili=filiali.codice) LEFT JOIN "
        "codicizona on lelin1=codicizona.Codice) LEFT join forni ON forni.Codice=lecdve WHERE "
        "lenrlv='0123' and ledtlv='2024-03-05' and lefili='MI';"_s);
}

TEST(Spedizione, perNumeroData)
{
    EXPECT_EQ(
        istruzioni::spedizionePerNumeroData(u"0123"_s, giorno, istruzioni::Giunzione::esterna),
        u"SELECT letve00f.*, giace00f.*, forni.RagioneSociale as Vettore, filiali.Descrizione as filiale, "
        "codicizona.Descrizione as linea from (((letve00f LEFT JOIN giace00f on lefili=gifili and "
        "lenrlv=ginrlv and leanlv=gianlv) LEFT JOIN filiali ON lefili=filiali.codice) LEFT JOIN "
        "codicizona on lelin1=codicizona.Codice) LEFT join forni ON forni.Codice=lecdve WHERE "
        "lenrlv='0123' and ledtlv='2024-03-05';"_s);
}

TEST(Spedizione, perNumeroDataMinuscola)
{
    EXPECT_EQ(
        istruzioni::spedizionePerNumeroData(u"0123"_s, giorno, istruzioni::Giunzione::esternaMinuscola),
        u"SELECT letve00f.*, giace00f.*, forni.RagioneSociale as Vettore, filiali.Descrizione as filiale, "
        "codicizona.Descrizione as linea from (((letve00f LEFT JOIN giace00f on lefili=gifili and "
        "lenrlv=ginrlv and leanlv=gianlv) left JOIN filiali ON lefili=filiali.codice) LEFT JOIN "
        "codicizona on lelin1=codicizona.Codice) LEFT join forni ON forni.Codice=lecdve WHERE "
        "lenrlv='0123' and ledtlv='2024-03-05';"_s);
}

TEST(Spedizione, perNumeroDataInterna)
{
    EXPECT_EQ(
        istruzioni::spedizionePerNumeroData(u"0123"_s, giorno, istruzioni::Giunzione::interna),
        u"SELECT letve00f.*, giace00f.*, forni.RagioneSociale as Vettore, filiali.Descrizione as filiale, "
        "codicizona.Descrizione as linea from (((letve00f LEFT JOIN giace00f on lefili=gifili and "
        "lenrlv=ginrlv and leanlv=gianlv) inner JOIN filiali ON lefili=filiali.codice) INNER JOIN "
        "codicizona on lelin1=codicizona.Codice) INNER join forni ON forni.Codice=lecdve WHERE "
        "lenrlv='0123' and ledtlv='2024-03-05';"_s);
}

TEST(Spedizione, perRiferimento)
{
    EXPECT_EQ(
        istruzioni::spedizionePerRiferimento(u"RIF 7/A"_s, giorno, u"MI"_s),
        u"SELECT letve00f.*, giace00f.*, forni.RagioneSociale as Vettore, filiali.Descrizione as filiale, "
        "codicizona.Descrizione as linea from (((letve00f LEFT JOIN giace00f on lefili=gifili and "
        "lenrlv=ginrlv and leanlv=gianlv) LEFT JOIN filiali ON lefili=filiali.codice) LEFT JOIN "
        "codicizona on lelin1=codicizona.Codice) LEFT join forni ON forni.Codice=lecdve WHERE lerife='RIF "
        "7/A' and lerifd='2024-03-05' and lefili='MI';"_s);
}

TEST(Spedizione, perGiacenza)
{
    EXPECT_EQ(
        istruzioni::spedizionePerGiacenza(u"42"_s, giorno),
        u"SELECT letve00f.*, giace00f.*, forni.RagioneSociale as Vettore, filiali.Descrizione as filiale, "
        "codicizona.Descrizione as linea from (((letve00f LEFT JOIN giace00f on lefili=gifili and "
        "lenrlv=ginrlv and leanlv=gianlv) inner JOIN filiali ON lefili=filiali.codice) INNER JOIN "
        "codicizona on lelin1=codicizona.Codice) INNER join forni ON forni.Codice=lecdve WHERE "
        "ginrgi='42' and GIDTGI='2024-03-05';"_s);
}

TEST(Spedizione, intera)
{
    EXPECT_EQ(istruzioni::spedizioneIntera(spedizione),
              u"select * from letve00f where Lefili='MI' and Lenrlv='0123' and Leanlv='2023';"_s);
}

TEST(Anagrafica, clientePerCodice)
{
    EXPECT_EQ(istruzioni::clientePerCodice(u"1001"_s),
              u"select RagioneSociale from clien where Codice=1001;"_s);
}

TEST(Anagrafica, elencoFiliali)
{
    EXPECT_EQ(istruzioni::elencoFiliali(), u"select codice, descrizione from filiali;"_s);
}

TEST(Anagrafica, descrizioneFiliale)
{
    EXPECT_EQ(istruzioni::descrizioneFiliale(u"MI"_s),
              u"select descrizione from filiali where codice='MI';"_s);
}

TEST(Anagrafica, filialeIntera)
{
    EXPECT_EQ(istruzioni::filialeIntera(u"MI"_s), u"Select *  from Filiali where codice='MI';"_s);
}

TEST(Anagrafica, elencoPorto)
{
    EXPECT_EQ(istruzioni::elencoPorto(), u"select * from porto order by idPorto"_s);
}

TEST(Salvataggio, ammissione)
{
    EXPECT_EQ(istruzioni::ammissione(u"0123"_s, giorno),
              u"select Lerico, lerfgi, leangi from letve00f where lenrlv='0123' and ledtlv='2024-03-05';"_s);
}

TEST(Salvataggio, collegaGiacenza)
{
    EXPECT_EQ(istruzioni::collegaGiacenza({u"42"_s, 2024}, u"0123"_s, 2023),
              u"update letve00f set LERFGI='42', LEANGI='2024', LEDTCO=null where lenrlv='0123' and "
              "leanlv='2023';"_s);
}

TEST(Numerazione, ultimoNumGiacenza)
{
    EXPECT_EQ(istruzioni::ultimoNumGiacenza(), u"select UltimoNumGiacenza from ekelvorqzt_tabge00f;"_s);
}

TEST(Numerazione, aggiornaUltimoNumGiacenza)
{
    EXPECT_EQ(istruzioni::aggiornaUltimoNumGiacenza(u"42"_s),
              u"update ekelvorqzt_tabge00f set UltimoNumGiacenza=42;"_s);
}

} // namespace
