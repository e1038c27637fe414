// The C interface: objects, their numbers, and who hears "fine".

#include "component/legamediprova.h"

#include <QPointer>

#include <cstring>
#include <dlfcn.h>
#include <thread>

using namespace giacenza::prove;
using namespace giacenza;

namespace {

/// What a listener of the test's was told, and what it does then.
struct Ascolto
{
    std::vector<giacenza_oggetto> sentite;
    std::function<void()> poi;
};

void senti(giacenza_oggetto oggetto, void* utente)
{
    auto* const ascolto = static_cast<Ascolto*>(utente);
    ascolto->sentite.push_back(oggetto);
    if (ascolto->poi)
        ascolto->poi();
}

class OggettiC : public LegameC
{
protected:
    OggettiC() { EXPECT_EQ(giacenza_ascolta(mOggetto, GIACENZA_ID_FINE, senti, &mAscolto), GIACENZA_BENE); }

    void apri() const { ASSERT_EQ(metodo(GIACENZA_ID_CONSULTA_GIACENZA), GIACENZA_BENE) << ultimo(); }

    Ascolto mAscolto;
};

/// A screen whose loading lets the program release the object that is opening it.
class Rilascia : public SchermataFinta<nomeGestione>
{
public:
    void carica() const
    {
        if (nelCarico)
            nelCarico();
    }
    static inline std::function<void()> nelCarico;
};

} // namespace

TEST_F(OggettiC, unaFinePerOgniChiusura)
{
    apri();
    EXPECT_TRUE(mAscolto.sentite.empty());
    schermata()->close();
    EXPECT_THAT(mAscolto.sentite, testing::ElementsAre(mOggetto));
    apri();
    schermata()->close();
    EXPECT_THAT(mAscolto.sentite, testing::ElementsAre(mOggetto, mOggetto));
}

TEST_F(OggettiC, unAscoltatoreAllaVolta)
{
    Ascolto altro;
    EXPECT_EQ(giacenza_ascolta(mOggetto, GIACENZA_ID_FINE, senti, &altro), GIACENZA_BENE);
    apri();
    schermata()->close();
    EXPECT_EQ(giacenza_ascolta(mOggetto, GIACENZA_ID_FINE, nullptr, nullptr), GIACENZA_BENE);
    apri();
    schermata()->close();
    EXPECT_TRUE(mAscolto.sentite.empty());
    EXPECT_EQ(altro.sentite.size(), 1U);
}

TEST_F(OggettiC, soloFineSiAscolta)
{
    EXPECT_EQ(giacenza_ascolta(mOggetto, 2, senti, &mAscolto), GIACENZA_MEMBRO_IGNOTO);
    EXPECT_EQ(ultimo(), "1: La classe non ha un membro con il numero 0x00000002.");
    EXPECT_EQ(giacenza_ascolta(mOggetto, GIACENZA_ID_TIPO_RESO, senti, &mAscolto), GIACENZA_MODO_SBAGLIATO);
    EXPECT_EQ(ultimo(), "2: \"TipoReso\" è una proprietà: non si può ascoltare.");
    EXPECT_EQ(giacenza_ascolta(mOggetto, GIACENZA_ID_NUOVA_GIACENZA, nullptr, nullptr),
              GIACENZA_MODO_SBAGLIATO);
    apri();
    schermata()->close();
    EXPECT_EQ(mAscolto.sentite.size(), 1U) << "the one of before still listens";
}

TEST_F(OggettiC, rilasciarloDentroFine)
{
    mAscolto.poi = [this] { EXPECT_EQ(giacenza_rilascia(mOggetto), GIACENZA_BENE); };
    EXPECT_EQ(metodo(GIACENZA_ID_NUOVA_GIACENZA), GIACENZA_BENE);
    apri();
    accaduto().clear();
    schermata()->close();
    EXPECT_EQ(mAscolto.sentite.size(), 1U) << "the screen that is closed by the release says nothing";
    svuota();
    EXPECT_EQ(accaduto(), (QStringList{u"frmGestGia chiusa"_s, u"frmGiacenza chiusa"_s,
                                       u"frmGestGia distrutta"_s, u"frmGiacenza distrutta"_s}));
    EXPECT_EQ(giacenza_rilascia(mOggetto), GIACENZA_OGGETTO_IGNOTO);
}

TEST_F(OggettiC, riaprireDentroFine)
{
    mAscolto.poi = [this] {
        if (mAscolto.sentite.size() == 1)
            apri();
    };
    apri();
    schermata()->close();
    svuota();
    ASSERT_NE(schermata(), nullptr);
    schermata()->close();
    EXPECT_EQ(mAscolto.sentite.size(), 2U);
}

TEST_F(OggettiC, smettereDiAscoltareDentroFine)
{
    mAscolto.poi = [this] { giacenza_ascolta(mOggetto, GIACENZA_ID_FINE, nullptr, nullptr); };
    for (int volta = 0; volta < 2; ++volta) {
        apri();
        schermata()->close();
    }
    EXPECT_EQ(mAscolto.sentite.size(), 1U);
}

TEST_F(OggettiC, rilasciarloDentroUnaSuaChiamata)
{
    mForme->registra<Rilascia>(frmGestGia);
    Rilascia::nelCarico = [this] {
        EXPECT_EQ(giacenza_rilascia(mOggetto), GIACENZA_BENE);
        EXPECT_EQ(metodo(GIACENZA_ID_NUOVA_GIACENZA), GIACENZA_OGGETTO_IGNOTO);
    };
    EXPECT_EQ(metodo(GIACENZA_ID_CONSULTA_GIACENZA), GIACENZA_BENE);
    Rilascia::nelCarico = {};
    // At the end of the call the object goes, and its screen with it.
    EXPECT_EQ(schermata(), nullptr);
    EXPECT_TRUE(mAscolto.sentite.empty());
}

TEST_F(OggettiC, rilasciarloDueVolte)
{
    EXPECT_EQ(giacenza_rilascia(mOggetto), GIACENZA_BENE);
    EXPECT_EQ(giacenza_rilascia(mOggetto), GIACENZA_OGGETTO_IGNOTO);
    EXPECT_EQ(ultimo(),
              "8: L'oggetto " + std::to_string(mOggetto) + " non c'è: mai creato, o già rilasciato.");
    giacenza_oggetto nuovo = 0;
    ASSERT_EQ(giacenza_crea(&nuovo), GIACENZA_BENE);
    EXPECT_NE(nuovo, mOggetto) << "the number of a released one is not given again";
    EXPECT_EQ(metodo(GIACENZA_ID_NUOVA_GIACENZA), GIACENZA_OGGETTO_IGNOTO);
    EXPECT_EQ(giacenza_ascolta(mOggetto, GIACENZA_ID_FINE, senti, &mAscolto), GIACENZA_OGGETTO_IGNOTO);
    EXPECT_EQ(giacenza_rilascia(nuovo), GIACENZA_BENE);
    EXPECT_EQ(accaduto(), QStringList());
}

TEST_F(OggettiC, numeriInventati)
{
    for (const giacenza_oggetto numero : {uint64_t{0}, UINT64_MAX, uint64_t{0x7FFFFFFFFFFF}}) {
        EXPECT_EQ(giacenza_rilascia(numero), GIACENZA_OGGETTO_IGNOTO);
        giacenza_valore valore = {99, 99, nullptr};
        EXPECT_EQ(giacenza_invoca(numero, GIACENZA_ID_PERCORSO_DATABASE, GIACENZA_LEGGI, nullptr, 0, &valore),
                  GIACENZA_OGGETTO_IGNOTO);
        EXPECT_EQ(valore.tipo, GIACENZA_VUOTO);
    }
    EXPECT_EQ(giacenza_crea(nullptr), GIACENZA_PUNTATORE_NULLO);
    EXPECT_EQ(ultimo(), "9: Il puntatore \"oggetto\" è nullo.");
}

TEST_F(OggettiC, leImpostazioniSonoDelThread)
{
    EXPECT_EQ(scrivi(GIACENZA_ID_PERCORSO_DATABASE, testo("uno")), GIACENZA_BENE);
    giacenza_oggetto altro = 0;
    ASSERT_EQ(giacenza_crea(&altro), GIACENZA_BENE);
    giacenza_valore letto = {};
    ASSERT_EQ(giacenza_invoca(altro, GIACENZA_ID_PERCORSO_DATABASE, GIACENZA_LEGGI, nullptr, 0, &letto),
              GIACENZA_BENE);
    EXPECT_STREQ(letto.testo, "uno");
    giacenza_libera(&letto);
    EXPECT_EQ(giacenza_rilascia(altro), GIACENZA_BENE);
}

TEST_F(OggettiC, daUnAltroThread)
{
    std::thread([this] {
        EXPECT_EQ(leggi(GIACENZA_ID_PERCORSO_DATABASE), "6: L'oggetto si usa nel thread che lo ha creato.");
        EXPECT_EQ(giacenza_rilascia(mOggetto), GIACENZA_ALTRO_THREAD);
        EXPECT_EQ(giacenza_ascolta(mOggetto, GIACENZA_ID_FINE, nullptr, nullptr), GIACENZA_ALTRO_THREAD);
        EXPECT_EQ(giacenza_avvia_interfaccia(nullptr), GIACENZA_ALTRO_THREAD);
        EXPECT_EQ(ultimo(), "6: L'interfaccia grafica è di un altro thread.");
        EXPECT_EQ(giacenza_elabora_eventi(0), GIACENZA_ALTRO_THREAD);
        giacenza_oggetto suo = 0;
        EXPECT_EQ(giacenza_crea(&suo), GIACENZA_BENE);
        EXPECT_EQ(giacenza_invoca(suo, GIACENZA_ID_CONSULTA_GIACENZA, GIACENZA_METODO, nullptr, 0, nullptr),
                  GIACENZA_ALTRO_THREAD);
        EXPECT_EQ(ultimo(), "6: Una schermata si apre nel thread dell'interfaccia grafica.");
        EXPECT_EQ(giacenza_rilascia(suo), GIACENZA_BENE);
    }).join();
    EXPECT_EQ(accaduto(), QStringList());
    apri();
    schermata()->close();
    EXPECT_EQ(mAscolto.sentite.size(), 1U);
}

TEST_F(OggettiC, unThreadNuovoConIlNumeroDiUnoFinito)
{
    giacenza_oggetto suo = 0;
    std::thread::id finito;
    std::thread([&] {
        finito = std::this_thread::get_id();
        EXPECT_EQ(giacenza_crea(&suo), GIACENZA_BENE);
    }).join();
    bool stesso = false;
    for (int volta = 0; volta < 100 && !stesso; ++volta)
        std::thread([&] {
            stesso = std::this_thread::get_id() == finito;
            EXPECT_EQ(giacenza_rilascia(suo), GIACENZA_ALTRO_THREAD);
        }).join();
    EXPECT_TRUE(stesso) << "the system gave the number again, as it does";
}

TEST_F(OggettiC, lInterfacciaDelProgrammaRestaSua)
{
    EXPECT_EQ(giacenza_avvia_interfaccia("altro"), GIACENZA_BENE);
    EXPECT_NE(QCoreApplication::arguments().value(0), u"altro"_s);
    EXPECT_EQ(giacenza_elabora_eventi(0), GIACENZA_BENE);
    EXPECT_EQ(giacenza_chiudi_interfaccia(), GIACENZA_BENE);
    EXPECT_NE(QCoreApplication::instance(), nullptr);
}

TEST_F(OggettiC, gliEventiSiElaborano)
{
    apri();
    QPointer<QWidget> aperta = schermata();
    QMetaObject::invokeMethod(aperta, &QWidget::close, Qt::QueuedConnection);
    while (mAscolto.sentite.empty())
        ASSERT_EQ(giacenza_elabora_eventi(1000), GIACENZA_BENE);
    EXPECT_EQ(giacenza_elabora_eventi(0), GIACENZA_BENE);
    EXPECT_TRUE(aperta.isNull()) << "it has asked to go";
    EXPECT_EQ(giacenza_elabora_eventi(-5), GIACENZA_BENE);
    EXPECT_EQ(giacenza_elabora_eventi(1), GIACENZA_BENE) << "with nothing to come it returns all the same";
}

TEST_F(OggettiC, gliEventiElaboratiDentroFineLascianoLaSchermata)
{
    apri();
    QPointer<QWidget> aperta = schermata();
    bool viva = false;
    mAscolto.poi = [&] {
        EXPECT_EQ(giacenza_elabora_eventi(0), GIACENZA_BENE);
        viva = !aperta.isNull();
    };
    aperta->close();
    EXPECT_TRUE(viva) << "it is still closing";
    EXPECT_EQ(giacenza_elabora_eventi(0), GIACENZA_BENE);
    EXPECT_TRUE(aperta.isNull());
}

TEST_F(OggettiC, unProgrammaCheGiraSuGlibNonElaboraNulla)
{
    // Its main context, as a program in C would run it; Qt has brought the library along.
    int (*iterazione)(void*, int) = nullptr;
    void* const indirizzo = ::dlsym(RTLD_DEFAULT, "g_main_context_iteration");
    ASSERT_NE(indirizzo, nullptr);
    std::memcpy(&iterazione, &indirizzo, sizeof indirizzo);
    apri();
    QMetaObject::invokeMethod(schermata(), &QWidget::close, Qt::QueuedConnection);
    while (mAscolto.sentite.empty())
        iterazione(nullptr, 1);
    EXPECT_EQ(mAscolto.sentite.size(), 1U);
}
