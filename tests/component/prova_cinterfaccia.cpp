// The C interface: values, texts, members, and what goes wrong.

#include "component/legamediprova.h"

#include <array>
#include <cstring>
#include <new>
#include <thread>

using namespace giacenza::prove;
using namespace giacenza;

namespace {

enum class Guasto
{
    database,
    testo,
    memoria,
    standard,
    numero
};

template<Guasto quale>
class Guasta : public SchermataFinta<nomeGestione>
{
public:
    void carica()
    {
        switch (quale) {
        case Guasto::database:
            throw ErroreDatabase(u"08S01"_s, 2002, u"rete à"_s, u"select 1"_s);
        case Guasto::testo:
            throw Errore(u"non va"_s);
        case Guasto::memoria:
            throw std::bad_alloc();
        case Guasto::standard:
            throw std::runtime_error("strano");
        case Guasto::numero:
            throw 5;
        }
    }
};

} // namespace

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

TEST_F(LegameC, leChiamateSbagliate)
{
    for (const uint32_t id : {0x60030007U, 0x60030009U, 0x6003000AU, 0x6003000DU, 0U, 2U})
        EXPECT_EQ(metodo(id), GIACENZA_MEMBRO_IGNOTO);
    EXPECT_EQ(ultimo(), "1: La classe non ha un membro con il numero 0x00000002.");
    EXPECT_EQ(metodo(GIACENZA_ID_FINE), GIACENZA_MODO_SBAGLIATO);
    EXPECT_EQ(metodo(GIACENZA_ID_PERCORSO_DATABASE), GIACENZA_MODO_SBAGLIATO);
    EXPECT_EQ(ultimo(), "2: \"PercorsoDatabase\" è una proprietà: non si può chiamare.");
    for (const int32_t modo : {0, 4, 5, -1}) {
        EXPECT_EQ(giacenza_invoca(mOggetto, GIACENZA_ID_NUOVA_GIACENZA, modo, nullptr, 0, nullptr),
                  GIACENZA_MODO_SBAGLIATO);
        EXPECT_EQ(ultimo(), "2: Modo di chiamata sconosciuto: " + std::to_string(modo) + ".");
    }
    EXPECT_EQ(leggi(GIACENZA_ID_TIPO_RESO), "3: La proprietà \"TipoReso\" si scrive soltanto.");
    EXPECT_EQ(leggi(GIACENZA_ID_PERCORSO_LOGO_INTESTAZIONE),
              "3: La proprietà \"PercorsoLogoIntestazione\" si scrive soltanto.");
    EXPECT_EQ(accaduto(), QStringList());
}

TEST_F(LegameC, gliArgomentiSbagliati)
{
    const giacenza_valore uno[] = {testo("x")};
    // The number is refused before what it counts is looked at.
    for (const int32_t numero : {2, 1'000'000'000, -1, 0}) {
        EXPECT_EQ(
            giacenza_invoca(mOggetto, GIACENZA_ID_PERCORSO_DATABASE, GIACENZA_SCRIVI, uno, numero, nullptr),
            GIACENZA_NUMERO_ARGOMENTI);
        EXPECT_EQ(ultimo(),
                  "4: Numero di argomenti sbagliato per \"PercorsoDatabase\": ne vuole 1, ne ha avuti " +
                      std::to_string(numero) + ".");
    }
    EXPECT_EQ(giacenza_invoca(mOggetto, GIACENZA_ID_PERCORSO_DATABASE, GIACENZA_SCRIVI, nullptr, 1, nullptr),
              GIACENZA_PUNTATORE_NULLO);
    EXPECT_EQ(ultimo(), "9: Il puntatore \"argomenti\" è nullo.");
    EXPECT_EQ(scrivi(GIACENZA_ID_PERCORSO_DATABASE, testo(nullptr)), GIACENZA_PUNTATORE_NULLO);
    EXPECT_EQ(ultimo(), "9: Il puntatore \"argomenti.testo\" è nullo.");
    EXPECT_EQ(scrivi(GIACENZA_ID_PERCORSO_DATABASE, intero(5)), GIACENZA_TIPO_ARGOMENTO);
    EXPECT_EQ(ultimo(), "5: L'argomento 1 di \"PercorsoDatabase\" (percorso) dev'essere un testo.");
    EXPECT_EQ(scrivi(GIACENZA_ID_PERCORSO_DATABASE, {GIACENZA_VUOTO, 0, nullptr}), GIACENZA_TIPO_ARGOMENTO);
    EXPECT_EQ(scrivi(GIACENZA_ID_TIPO_RESO, testo("2")), GIACENZA_TIPO_ARGOMENTO);
    EXPECT_EQ(ultimo(), "5: L'argomento 1 di \"TipoReso\" (tipo) dev'essere un intero.");
    EXPECT_EQ(scrivi(GIACENZA_ID_TIPO_RESO, {GIACENZA_LOGICO, 1, nullptr}), GIACENZA_TIPO_ARGOMENTO);
    for (const int32_t tipo : {4, 5, 6, -1}) {
        EXPECT_EQ(scrivi(GIACENZA_ID_TIPO_RESO, {tipo, 2, nullptr}), GIACENZA_TIPO_ARGOMENTO);
        EXPECT_EQ(ultimo(), "5: L'argomento 1 è di un tipo sconosciuto: " + std::to_string(tipo) + ".");
    }
    EXPECT_EQ(leggi(GIACENZA_ID_PERCORSO_DATABASE), "");
    EXPECT_EQ(impostazioni().movimento, Movimento::nessuno);
}

TEST_F(LegameC, iTestiCheNonSonoUtf8)
{
    for (const char* valore :
         {"\xE0", "ab\xC3", "\xC0\x80", "\xED\xA0\x80", "\xF8\x88\x80\x80\x80", "\xFF"}) {
        EXPECT_EQ(scrivi(GIACENZA_ID_PERCORSO_DATABASE, testo(valore)), GIACENZA_TESTO_NON_VALIDO);
        EXPECT_EQ(ultimo(), "10: Il testo \"argomenti.testo\" non è in UTF-8.");
    }
    EXPECT_EQ(leggi(GIACENZA_ID_PERCORSO_DATABASE), "");
}

TEST_F(LegameC, unTestoCheCNonTieneNonSiTronca)
{
    for (const QString& strano : {u"prima"_s + QChar(u'\0') + u"dopo"_s, u"mezzo "_s + QChar(0xD834)}) {
        impostazioni().percorsoDatabase = strano;
        EXPECT_EQ(leggi(GIACENZA_ID_PERCORSO_DATABASE),
                  "10: Il risultato contiene un carattere che non si può restituire.");
    }
}

TEST_F(LegameC, ilFallimentoDellaChiamataPassaComE)
{
    mForme->registra<Guasta<Guasto::database>>(frmGestGia);
    EXPECT_EQ(metodo(GIACENZA_ID_CONSULTA_GIACENZA), GIACENZA_DATABASE);
    EXPECT_EQ(ultimo(), "20: rete à");
    EXPECT_STREQ(giacenza_errore_sqlstate(), "08S01");
    EXPECT_EQ(giacenza_errore_nativo(), 2002);
    EXPECT_EQ(giacenza_numero_membri(), 12);
    EXPECT_EQ(ultimo(), "20: rete à") << "what cannot fail forgets nothing";
    std::thread([] { EXPECT_EQ(ultimo(), "0: "); }).join();
    EXPECT_EQ(scrivi(GIACENZA_ID_TIPO_RESO, intero(1)), GIACENZA_BENE);
    EXPECT_EQ(ultimo(), "0: ");
    EXPECT_STREQ(giacenza_errore_sqlstate(), "");
    EXPECT_EQ(giacenza_errore_nativo(), 0);
    EXPECT_EQ(schermata(), nullptr);
}

TEST_F(LegameC, nessunaEccezionePassa)
{
    mForme->registra<Guasta<Guasto::testo>>(frmGestGia);
    EXPECT_EQ(metodo(GIACENZA_ID_CONSULTA_GIACENZA), GIACENZA_FALLITA);
    EXPECT_EQ(ultimo(), "21: non va");
    mForme->registra<Guasta<Guasto::memoria>>(frmGestGia);
    EXPECT_EQ(metodo(GIACENZA_ID_CONSULTA_GIACENZA), GIACENZA_MEMORIA);
    EXPECT_EQ(ultimo(), "22: Memoria insufficiente.");
    mForme->registra<Guasta<Guasto::standard>>(frmGestGia);
    EXPECT_EQ(metodo(GIACENZA_ID_CONSULTA_GIACENZA), GIACENZA_INATTESO);
    EXPECT_EQ(ultimo(), "23: Errore inatteso: strano");
    mForme->registra<Guasta<Guasto::numero>>(frmGestGia);
    EXPECT_EQ(metodo(GIACENZA_ID_CONSULTA_GIACENZA), GIACENZA_INATTESO);
    EXPECT_EQ(ultimo(), "23: Errore inatteso, senza descrizione.");
    EXPECT_EQ(schermata(), nullptr);
}

TEST_F(LegameC, liberareNulla)
{
    giacenza_libera(nullptr);
    giacenza_valore valore = {GIACENZA_VUOTO, 0, nullptr};
    giacenza_libera(&valore);
    ASSERT_EQ(giacenza_invoca(mOggetto, GIACENZA_ID_PERCORSO_DATABASE, GIACENZA_LEGGI, nullptr, 0, &valore),
              GIACENZA_BENE);
    giacenza_libera(&valore);
    EXPECT_EQ(valore.tipo, GIACENZA_VUOTO);
    giacenza_libera(&valore);
    EXPECT_EQ(giacenza_invoca(mOggetto, GIACENZA_ID_PERCORSO_DATABASE, GIACENZA_LEGGI, nullptr, 0, nullptr),
              GIACENZA_BENE)
        << "nobody wants the result";
}
