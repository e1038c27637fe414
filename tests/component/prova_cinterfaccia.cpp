// The C interface: values, texts, members.

#include "component/legamediprova.h"

#include <array>
#include <cstring>

using namespace giacenza::prove;
using namespace giacenza;

TEST_F(LegameC, laVersione)
{
    EXPECT_STREQ(giacenza_versione(), GIACENZA_VERSIONE_ATTESA);
    EXPECT_EQ(giacenza_abi(), 1U);
    EXPECT_EQ(giacenza_abi(), uint32_t{GIACENZA_ABI});
    EXPECT_THAT(giacenza_descrizione(), testing::HasSubstr("\"versione\": \"" GIACENZA_VERSIONE_ATTESA "\""));
}

TEST_F(LegameC, leStruttureHannoLaLoroMisura)
{
    EXPECT_EQ(sizeof(giacenza_oggetto), 8U);
    EXPECT_EQ(sizeof(giacenza_valore), 16U);
    EXPECT_EQ(sizeof(giacenza_argomento), 16U);
    EXPECT_EQ(sizeof(giacenza_membro), 40U);
    EXPECT_EQ(offsetof(giacenza_valore, testo), 8U);
    EXPECT_EQ(offsetof(giacenza_membro, nome), 16U);
    EXPECT_EQ(offsetof(giacenza_membro, argomenti), 32U);
}

TEST_F(LegameC, iTestiVannoETornanoTaliEQuali)
{
    for (const char* valore : {"DRIVER={X};PWD=a;b'\"\\ \t ", "", "depòsito ✓ 𝄞",
                               "\xEF\xBB\xBF"
                               "con segno"}) {
        ASSERT_EQ(scrivi(GIACENZA_ID_PERCORSO_DATABASE, testo(valore)), GIACENZA_BENE);
        EXPECT_EQ(leggi(GIACENZA_ID_PERCORSO_DATABASE), valore);
        EXPECT_EQ(ultimo(), "0: ");
    }
    const std::string lungo(1'000'000, 'x');
    ASSERT_EQ(scrivi(GIACENZA_ID_PERCORSO_FILE_INI, testo(lungo.c_str())), GIACENZA_BENE);
    EXPECT_EQ(leggi(GIACENZA_ID_PERCORSO_FILE_INI), lungo);
}

TEST_F(LegameC, ogniMembro)
{
    EXPECT_EQ(scrivi(GIACENZA_ID_PERCORSO_LOGO_INTESTAZIONE, testo("logo.gif")), GIACENZA_BENE);
    EXPECT_EQ(impostazioni().percorsoLogoIntestazione, u"logo.gif"_s);
    for (const int32_t tipo : {1, 0, 3, -1, INT32_MAX, INT32_MIN}) {
        EXPECT_EQ(scrivi(GIACENZA_ID_TIPO_RESO, intero(GIACENZA_RESO_MITTENTE)), GIACENZA_BENE);
        EXPECT_EQ(impostazioni().movimento, Movimento::reso);
        EXPECT_EQ(scrivi(GIACENZA_ID_TIPO_RESO, intero(tipo)), GIACENZA_BENE);
        EXPECT_EQ(impostazioni().movimento, Movimento::riconsegna) << tipo;
    }
    EXPECT_EQ(metodo(GIACENZA_ID_NUOVA_GIACENZA), GIACENZA_BENE);
    EXPECT_EQ(metodo(GIACENZA_ID_MOSTRA_RICONSEGNA), GIACENZA_BENE);
    EXPECT_EQ(metodo(GIACENZA_ID_CONSULTA_GIACENZA), GIACENZA_BENE);
    const QStringList aperta = {creata, mostrata};
    EXPECT_EQ(accaduto(),
              eventi(frmGiacenza, aperta) + eventi(frmRiconsegna, aperta) + eventi(frmGestGia, aperta));
    giacenza_valore risultato = {99, 99, "mai"};
    const giacenza_valore argomenti[] = {testo("azione"), {GIACENZA_LOGICO, 7, nullptr}};
    for (const int32_t numero : {1, 2}) {
        EXPECT_EQ(
            giacenza_invoca(mOggetto, GIACENZA_ID_ESEGUI, GIACENZA_METODO, argomenti, numero, &risultato),
            GIACENZA_BENE);
        EXPECT_EQ(risultato.tipo, GIACENZA_VUOTO);
    }
}

TEST_F(LegameC, gliArgomentiPerRiferimentoTornanoComErano)
{
    const std::array<giacenza_valore, 4> dati = {testo("1"), testo("01/02/2024"), testo("MI"), testo("77")};
    std::array<giacenza_valore, 4> miei;
    std::memcpy(miei.data(), dati.data(), sizeof dati);
    EXPECT_EQ(
        giacenza_invoca(mOggetto, GIACENZA_ID_NUOVA_GIACENZA_EXT, GIACENZA_METODO, miei.data(), 4, nullptr),
        GIACENZA_BENE);
    EXPECT_EQ(accaduto(), (QStringList{u"frmGiacenza creata"_s, u"frmGiacenza.NLettVett=1"_s,
                                       u"frmGiacenza.DataLdv=01/02/2024"_s, u"frmGiacenza.Filiale=MI"_s,
                                       u"frmGiacenza.CodiceCliente=77"_s, u"frmGiacenza mostrata"_s}));
    EXPECT_EQ(std::memcmp(miei.data(), dati.data(), sizeof dati), 0);
    EXPECT_STREQ(miei[1].testo, "01/02/2024");
}

TEST_F(LegameC, iMembriSiElencano)
{
    QStringList elenco;
    for (int32_t i = 0; i < giacenza_numero_membri(); ++i) {
        giacenza_membro membro = {};
        membro.dimensione = sizeof membro;
        ASSERT_EQ(giacenza_descrivi_membro(i, &membro), GIACENZA_BENE);
        EXPECT_EQ(membro.dimensione, sizeof membro);
        EXPECT_EQ(membro.argomenti == nullptr, membro.numero_argomenti == 0);
        QString riga = u"%1 %2 %3 %4"_s.arg(membro.posizione)
                           .arg(QLatin1StringView(membro.nome))
                           .arg(membro.id, 0, 16)
                           .arg(membro.modo);
        for (int32_t a = 0; a < membro.numero_argomenti; ++a)
            riga += u" %1:%2:%3"_s.arg(QLatin1StringView(membro.argomenti[a].nome))
                        .arg(membro.argomenti[a].tipo)
                        .arg(membro.argomenti[a].segni);
        elenco << riga + u" -> %1"_s.arg(membro.risultato);
    }
    EXPECT_EQ(elenco,
              (QStringList{u"1 PercorsoDatabase 68030003 1 -> 1"_s,
                           u"2 PercorsoDatabase 68030003 2 percorso:1:0 -> 0"_s,
                           u"3 PercorsoFileIni 68030002 1 -> 1"_s,
                           u"4 PercorsoFileIni 68030002 2 percorso:1:0 -> 0"_s,
                           u"5 NuovaGiacenza 60030005 3 -> 0"_s,
                           u"6 NuovaGiacenzaEXT 60030006 3 strLdv:1:1 strDataLdv:1:1 strFiliale:1:1 "
                           "strCliente:1:1 -> 0"_s,
                           u"7 PercorsoLogoIntestazione 68030001 2 percorso:1:0 -> 0"_s,
                           u"8 MostraRiconsegna 60030008 3 -> 0"_s, u"9 TipoReso 68030000 2 tipo:5:0 -> 0"_s,
                           u"10 ConsultaGiacenza 6003000b 3 -> 0"_s,
                           u"11 Esegui 6003000c 3 Azione:1:1 Arg:4:3 -> 4"_s, u"1 fine 1 4 -> 0"_s}));
}

TEST_F(LegameC, laDescrizioneDiUnMembroCheManca)
{
    giacenza_membro membro = {};
    EXPECT_EQ(giacenza_descrivi_membro(0, nullptr), GIACENZA_PUNTATORE_NULLO);
    EXPECT_EQ(ultimo(), "9: Il puntatore \"membro\" è nullo.");
    EXPECT_EQ(giacenza_descrivi_membro(0, &membro), GIACENZA_STRUTTURA);
    EXPECT_EQ(ultimo(), "11: La dimensione di giacenza_membro è sconosciuta: 0.");
    membro.dimensione = sizeof membro;
    for (const int32_t indice : {-1, 12, INT32_MAX, INT32_MIN})
        EXPECT_EQ(giacenza_descrivi_membro(indice, &membro), GIACENZA_MEMBRO_IGNOTO);
    EXPECT_EQ(ultimo(), "1: La classe non ha un membro con l'indice -2147483648.");
}

TEST_F(LegameC, laStrutturaDiUnaVersioneDopo)
{
    struct
    {
        giacenza_membro membro;
        uint64_t dopo;
    } grande = {{}, 0xABCD};
    grande.membro.dimensione = sizeof grande;
    ASSERT_EQ(giacenza_descrivi_membro(11, &grande.membro), GIACENZA_BENE) << ultimo();
    EXPECT_STREQ(grande.membro.nome, "fine");
    EXPECT_EQ(grande.membro.dimensione, sizeof(giacenza_membro)) << "how much was filled";
    EXPECT_EQ(grande.dopo, 0xABCDU) << "nothing beyond what the library knows";
    grande.membro.dimensione = sizeof(giacenza_membro) - 1;
    EXPECT_EQ(giacenza_descrivi_membro(11, &grande.membro), GIACENZA_STRUTTURA);
}

TEST_F(LegameC, iMembriSiTrovanoPerNome)
{
    uint32_t id = 7;
    for (const char* nome : {"NuovaGiacenzaEXT", "nuovagiacenzaext", "NUOVAGIACENZAEXT"}) {
        EXPECT_EQ(giacenza_trova_membro(nome, &id), GIACENZA_BENE);
        EXPECT_EQ(id, GIACENZA_ID_NUOVA_GIACENZA_EXT);
    }
    EXPECT_EQ(giacenza_trova_membro("Fine", &id), GIACENZA_BENE);
    EXPECT_EQ(id, GIACENZA_ID_FINE);
    EXPECT_EQ(giacenza_trova_membro("Ignoto", &id), GIACENZA_MEMBRO_IGNOTO);
    EXPECT_EQ(ultimo(), "1: La classe non ha il membro \"Ignoto\".");
    EXPECT_EQ(id, 0U);
    EXPECT_EQ(giacenza_trova_membro(nullptr, &id), GIACENZA_PUNTATORE_NULLO);
    EXPECT_EQ(ultimo(), "9: Il puntatore \"nome\" è nullo.");
    EXPECT_EQ(giacenza_trova_membro("fine", nullptr), GIACENZA_PUNTATORE_NULLO);
    EXPECT_EQ(ultimo(), "9: Il puntatore \"id\" è nullo.");
    EXPECT_EQ(giacenza_trova_membro("fin\xE8", &id), GIACENZA_TESTO_NON_VALIDO);
    EXPECT_EQ(ultimo(), "10: Il testo \"nome\" non è in UTF-8.");
}
