// The C interface: what goes wrong.

#include "component/legamediprova.h"

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

class GuastiC : public LegameC
{};

} // namespace

TEST_F(GuastiC, leChiamateSbagliate)
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

TEST_F(GuastiC, gliArgomentiSbagliati)
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

TEST_F(GuastiC, iTestiCheNonSonoUtf8)
{
    for (const char* valore :
         {"\xE0", "ab\xC3", "\xC0\x80", "\xED\xA0\x80", "\xF8\x88\x80\x80\x80", "\xFF"}) {
        EXPECT_EQ(scrivi(GIACENZA_ID_PERCORSO_DATABASE, testo(valore)), GIACENZA_TESTO_NON_VALIDO);
        EXPECT_EQ(ultimo(), "10: Il testo \"argomenti.testo\" non è in UTF-8.");
    }
    EXPECT_EQ(leggi(GIACENZA_ID_PERCORSO_DATABASE), "");
}

TEST_F(GuastiC, unTestoCheCNonTieneNonSiTronca)
{
    for (const QString& strano : {u"prima"_s + QChar(u'\0') + u"dopo"_s, u"mezzo "_s + QChar(0xD834)}) {
        impostazioni().percorsoDatabase = strano;
        EXPECT_EQ(leggi(GIACENZA_ID_PERCORSO_DATABASE),
                  "10: Il risultato contiene un carattere che non si può restituire.");
    }
}

TEST_F(GuastiC, ilFallimentoDellaChiamataPassaComE)
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

TEST_F(GuastiC, nessunaEccezionePassa)
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

TEST_F(GuastiC, liberareNulla)
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
