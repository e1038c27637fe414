#include "base/errorenumerato.h"
#include "base/limitefile.h"
#include "base/listbox.h"
#include "widgets/naturamercediprova.h"

using giacenza::CaricaNaturaMerce;
using giacenza::impostazioni;
using giacenza::percorsoNaturaMerce;
using giacenza::prove::lista;

class NaturaMerceAggiunta : public giacenza::prove::NaturaMerceDiProva
{};

TEST_F(NaturaMerceAggiunta, siAggiungeInMaiuscolo)
{
    scrivi(lista, "VEDI DDT\n");
    aggiungi(u"caffè in grani"_s);
    EXPECT_EQ(leggi(lista), "VEDI DDT\nCAFFÈ IN GRANI\n");
    nessunMessaggio();
    CaricaNaturaMerce(&mElenco);
    EXPECT_EQ(voci(), (QStringList{u"VEDI DDT"_s, u"CAFFÈ IN GRANI"_s}));
    EXPECT_EQ(mElenco.currentText(), u"caffè in grani"_s);
}

TEST_F(NaturaMerceAggiunta, ilFileNuovoCominciaConVediDdt)
{
    aggiungi(u"Scatole"_s);
    EXPECT_EQ(leggi(lista), "VEDI DDT\nSCATOLE\n");
    nessunMessaggio();
}

TEST_F(NaturaMerceAggiunta, unaVoceCheCEGiaSiRifiuta)
{
    scrivi(lista, "VEDI DDT\r\nSCATOLE\r\nCOLLI");
    for (const QString& doppia : {u"scatole"_s, u"Colli"_s, u"vedi ddt"_s}) {
        aggiungi(doppia);
        aggiuntaRifiutata();
    }
    EXPECT_EQ(leggi(lista), "VEDI DDT\r\nSCATOLE\r\nCOLLI");
}

TEST_F(NaturaMerceAggiunta, ilRifiutoHaIlSuoNumero)
{
    scrivi(lista, "VEDI DDT\n");
    try {
        giacenza::aggiungiAllElenco(percorsoNaturaMerce(), u"VEDI DDT"_s);
        FAIL() << "accettata";
    } catch (const giacenza::ErroreNumerato& errore) {
        EXPECT_EQ(errore.numero(), 512);
    }
}

TEST_F(NaturaMerceAggiunta, siConfrontaLaRigaIntera)
{
    scrivi(lista, "VEDI DDT\nSCATOLE GRANDI\nscatole\n");
    aggiungi(u"scatole"_s);
    EXPECT_EQ(leggi(lista), "VEDI DDT\nSCATOLE GRANDI\nscatole\nSCATOLE\n");
}

TEST_F(NaturaMerceAggiunta, unTestoBiancoSiRifiuta)
{
    for (const QString& bianco : {QString(), u"  "_s}) {
        aggiungi(bianco);
        aggiuntaRifiutata();
    }
    EXPECT_FALSE(QFile::exists(percorso(lista)));
}

TEST_F(NaturaMerceAggiunta, mezzoCarattereSiRifiutaENonDiventaUnPuntoDiDomanda)
{
    const QString camion = QString::fromUtf8("🚚");
    for (const QString& prima : {QString(), u"VEDI DDT\n"_s}) {
        if (!prima.isEmpty())
            scrivi(lista, "VEDI DDT\n");
        for (const QString& mezzo : {u"SCATOLE "_s + camion.at(0), camion.at(1) + u" SCATOLE"_s}) {
            aggiungi(mezzo);
            aggiuntaRifiutata();
        }
        EXPECT_EQ(QFile::exists(percorso(lista)) ? leggi(lista) : QByteArray(), prima.toUtf8());
    }
    aggiungi(u"scatole "_s + camion);
    EXPECT_EQ(leggi(lista), "VEDI DDT\nSCATOLE \xF0\x9F\x9A\x9A\n");
}

TEST_F(NaturaMerceAggiunta, ilFineRigaEQuelloDelFile)
{
    scrivi(lista, "VEDI DDT\r\nSCATOLE\r\n");
    aggiungi(u"colli"_s);
    EXPECT_EQ(leggi(lista), "VEDI DDT\r\nSCATOLE\r\nCOLLI\r\n");
}

TEST_F(NaturaMerceAggiunta, unUltimaRigaApertaNonSiAttaccaAllaNuova)
{
    scrivi(lista, "VEDI DDT\r\nSCATOLE");
    aggiungi(u"colli"_s);
    EXPECT_EQ(leggi(lista), "VEDI DDT\r\nSCATOLE\r\nCOLLI\r\n");
    scrivi(lista, "VEDI DDT");
    aggiungi(u"colli"_s);
    EXPECT_EQ(leggi(lista), "VEDI DDT\nCOLLI\n");
}

TEST_F(NaturaMerceAggiunta, unaRigaCheFinisceAMetaRestaQuella)
{
    scrivi(lista, "VEDI DDT\r\nSCATOLE\r");
    aggiungi(u"colli"_s);
    EXPECT_EQ(giacenza::leggiElenco(percorsoNaturaMerce()),
              (QStringList{u"VEDI DDT"_s, u"SCATOLE"_s, u"COLLI"_s}));
}

TEST_F(NaturaMerceAggiunta, laCodificaEQuellaDelFile)
{
    scrivi(lista, "VEDI DDT\nCAFF\xC8\n");
    aggiungi(u"tè"_s);
    EXPECT_EQ(leggi(lista), "VEDI DDT\nCAFF\xC8\nT\xC8\n");
    aggiungi(u"caffè"_s);
    aggiuntaRifiutata();
    aggiungi(u"茶"_s);
    aggiuntaRifiutata();
    EXPECT_EQ(leggi(lista), "VEDI DDT\nCAFF\xC8\nT\xC8\n");
}

TEST_F(NaturaMerceAggiunta, cartellaCheMancaECartellaCheNonLoE)
{
    impostazioni().percorsoFileIni = percorso(u"manca/gest.ini"_s);
    CaricaNaturaMerce(&mElenco);
    nessunMessaggio();
    aggiungi(u"colli"_s);
    aggiuntaRifiutata();

    scrivi(u"file"_s, "x");
    impostazioni().percorsoFileIni = percorso(u"file\\gest.ini"_s);
    aggiungi(u"colli"_s);
    aggiuntaRifiutata();
    EXPECT_EQ(leggi(u"file"_s), "x");
}

TEST_F(NaturaMerceAggiunta, laBarraRovesciaSeparaLeCartelle)
{
    ASSERT_TRUE(QDir().mkpath(percorso(u"dati"_s)));
    impostazioni().percorsoFileIni = percorso(u"dati\\gest.ini"_s);
    aggiungi(u"colli"_s);
    EXPECT_EQ(leggi(u"dati/listbox.dat"_s), "VEDI DDT\nCOLLI\n");
    CaricaNaturaMerce(&mElenco);
    EXPECT_EQ(voci(), (QStringList{u"VEDI DDT"_s, u"COLLI"_s}));
}

TEST_F(NaturaMerceAggiunta, unDiscoPienoLasciaLaListaComEra)
{
    scrivi(lista, "VEDI DDT\n");
    {
        const LimiteFile limite(12);
        aggiungi(u"scatole"_s);
    }
    aggiuntaRifiutata();
    EXPECT_EQ(leggi(lista), "VEDI DDT\n");
    aggiungi(u"scatole"_s);
    EXPECT_EQ(leggi(lista), "VEDI DDT\nSCATOLE\n");
}

TEST_F(NaturaMerceAggiunta, unDiscoPienoNonLasciaUnaListaAMeta)
{
    {
        const LimiteFile limite(4);
        aggiungi(u"scatole"_s);
    }
    aggiuntaRifiutata();
    EXPECT_FALSE(QFile::exists(percorso(lista)));
}
