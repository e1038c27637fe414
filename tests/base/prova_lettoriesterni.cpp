#include "base/cartellaprova.h"
#include "base/servizi.h"

#include <giacenza/Errore.h>
#include <giacenza/LettoreIni.h>

#include <cerrno>
#include <sys/inotify.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

using giacenza::LeggiIni;
using giacenza::LettoreIni;
using giacenza::registraParte;

namespace {

const QString moduli = QStringLiteral(GIACENZA_PROVA_MODULI);
const QString moduloLettore = QStringLiteral(GIACENZA_PROVA_LETTORE);

/// Counts how often a folder, or a file that lies in it, is opened by anybody.
class Aperture
{
public:
    explicit Aperture(const QString& cartella) : mPosta(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        if (mPosta < 0 || inotify_add_watch(mPosta, QFile::encodeName(cartella).constData(), IN_OPEN) < 0)
            throw std::runtime_error("la cartella non si lascia osservare");
    }
    Aperture(const Aperture&) = delete;
    Aperture& operator=(const Aperture&) = delete;
    ~Aperture() { close(mPosta); }

    /// Since the last call.
    int conta() const
    {
        int aperture = 0;
        alignas(inotify_event) std::array<char, 4096> posta;
        for (;;) {
            const ssize_t lunghezza = read(mPosta, posta.data(), posta.size());
            if (lunghezza < 0) {
                if (errno != EAGAIN)
                    throw std::runtime_error("la posta della cartella non si legge");
                return aperture;
            }
            for (ssize_t inizio = 0; inizio < lunghezza; ++aperture) {
                const auto* evento = reinterpret_cast<const inotify_event*>(posta.data() + inizio);
                inizio += static_cast<ssize_t>(sizeof(inotify_event) + evento->len);
            }
        }
    }

private:
    int mPosta;
};

class LettoreCheRisponde : public LettoreIni
{
    QString leggi(const QString&, const QString&, const QString&) override { return u"dall'ospite"_s; }
};

const QString classe = QStringView(giacenza::classeLettoreIni).toString();

/// Each test has a folder of its own, so what an earlier one made the process remember does not matter.
class LettoriEsterni : public giacenza::prove::CartellaProva
{
protected:
    LettoriEsterni()
    {
        qputenv("GIACENZA_PARTI", percorso({}).toUtf8());
        scrivi(u"gest.ini"_s, "[Bord]\nCaptionLbl1=dal file\n");
    }
    ~LettoriEsterni() override
    {
        registraParte(classe, {});
        qunsetenv("GIACENZA_PARTI");
    }

    void porta(const QString& modulo, const QString& nome) const
    {
        ASSERT_TRUE(QFile::copy(modulo, percorso(nome)));
    }
    static QString voce() { return LeggiIni(u"Bord"_s, u"CaptionLbl1"_s); }
};

} // namespace

TEST_F(LettoriEsterni, senzaLettoreLeCartelleSiGuardanoUnaVoltaSola)
{
    porta(moduli + u"/buono.so"_s, u"buono.so"_s);
    giacenza::impostazioni().percorsoFileIni = u"/non/c'è.ini"_s;
    const Aperture aperture(percorso({}));
    EXPECT_EQ(voce(), QString());
    EXPECT_GE(aperture.conta(), 2) << "the folder and the plug-in file";
    for (int volta = 0; volta < 10; ++volta)
        EXPECT_EQ(voce(), QString());
    EXPECT_EQ(aperture.conta(), 0);
}

TEST_F(LettoriEsterni, ogniValoreDelFileSiVedeSubito)
{
    EXPECT_EQ(voce(), u"dal file"_s);
    scrivi(u"gest.ini"_s, "[Bord]\nCaptionLbl1=cambiato\n");
    EXPECT_EQ(voce(), u"cambiato"_s);
}

TEST_F(LettoriEsterni, chiRegistraDopoVinceSubitoEChiSiToglieLasciaIlFile)
{
    EXPECT_EQ(voce(), u"dal file"_s);
    registraParte(classe, [] { return std::make_unique<LettoreCheRisponde>(); });
    EXPECT_EQ(voce(), u"dall'ospite"_s);
    registraParte(classe, {});
    EXPECT_EQ(voce(), u"dal file"_s);
}

TEST_F(LettoriEsterni, unModuloCheLoServeSiUsaAOgniLettura)
{
    porta(moduloLettore, u"lettore.so"_s);
    for (int volta = 0; volta < 3; ++volta)
        EXPECT_EQ(voce(), u"dal modulo: Bord/CaptionLbl1"_s);
    ASSERT_TRUE(QFile::remove(percorso(u"lettore.so"_s)));
    EXPECT_EQ(voce(), u"dal file"_s) << "that one is there is not remembered";
}

TEST_F(LettoriEsterni, cheMancaValePerQuelleCartelleESiRicordaFinoAllaFine)
{
    EXPECT_EQ(voce(), u"dal file"_s);
    porta(moduloLettore, u"lettore.so"_s);
    EXPECT_EQ(voce(), u"dal file"_s) << "brought to a folder that was looked through before";
    qputenv("GIACENZA_PARTI", QFileInfo(moduloLettore).absolutePath().toUtf8());
    EXPECT_EQ(voce(), u"dal modulo: Bord/CaptionLbl1"_s) << "other folders are looked through";
    qputenv("GIACENZA_PARTI", percorso({}).toUtf8());
    EXPECT_EQ(voce(), u"dal file"_s);
}

TEST_F(LettoriEsterni, unFileGuastoPuoEssereUnLettoreCopiatoAMeta)
{
    QFile intero(moduloLettore);
    ASSERT_TRUE(intero.open(QIODevice::ReadOnly));
    const QByteArray byte = intero.readAll();
    scrivi(u"lettore.so"_s, byte.first(12000));
    EXPECT_EQ(voce(), u"dal file"_s);
    scrivi(u"lettore.so"_s, byte);
    EXPECT_EQ(voce(), u"dal modulo: Bord/CaptionLbl1"_s);
}

TEST_F(LettoriEsterni, leAltrePartiSiCercanoOgniVolta)
{
    EXPECT_EQ(giacenza::creaParte(u"ReportDocProva.cModuliStampa"_s).parte, nullptr);
    porta(moduli + u"/buono.so"_s, u"buono.so"_s);
    EXPECT_NE(giacenza::creaParte(u"ReportDocProva.cModuliStampa"_s).parte, nullptr);
}
