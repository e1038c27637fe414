// Screens and dialogs opened and closed again and again: the process is afterwards as it was before.

#include "dialogs/frmCalendario.h"
#include "dialogs/frmPorto.h"
#include "dialogs/frmRifiuto.h"
#include "management/frmGestGia.h"
#include "redelivery/frmRiconsegna.h"
#include "registration/frmGiacenza.h"
#include "search/frmRicerca.h"
#include "search/frmRicercaGia.h"
#include "support/bancadati.h"
#include "support/cadute.h"
#include "support/spedizioni.h"
#include "support/stampa.h"

#include "base/impostazioni.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QLineEdit>
#include <QPixmapCache>
#include <QPointer>
#include <QTest>

#include <gmock/gmock.h>

#include <malloc.h>

#include <limits>

using namespace Qt::StringLiterals;
using namespace giacenza;
using namespace giacenza::prove;

namespace {

/// What stays for the process (fonts, styles, a driver) is there after these.
constexpr int primeVolte = 60;
/// Bytes that an opening may leave: less than the smallest object of the toolkit's.
constexpr qint64 niente = 64;
/// What Qt 6.4 keeps of a combo box under a style sheet, and of a calendar: plain ones leave as much.
constexpr qint64 delleTendine = 1280;
constexpr qint64 delCalendario = 1024;

/// What the process asks for once (a table that grows, what a thread's allocator keeps) is shared out among
/// ever more openings while the windows are opened that often again; a leak is not.
constexpr int giri = 8;
/// What the server needs at most to end a session that was closed.
constexpr int millisecondiServer = 20'000;

/// GIACENZA_VOLTE: how often each window is opened; 100 times where it is not set.
int volte()
{
    bool detto = false;
    const int quante = qEnvironmentVariableIntValue("GIACENZA_VOLTE", &detto);
    return detto ? quante : 100;
}

void elabora()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

/// Bytes that the process has asked for and not given back; the toolkit's pictures, which it keeps up to a
/// limit of its own, are given back first.
qint64 memoria()
{
    QPixmapCache::clear();
    const struct mallinfo2 memoria = mallinfo2();
    return static_cast<qint64>(memoria.uordblks + memoria.hblkhd);
}

qsizetype manici()
{
    return QDir(u"/proc/self/fd"_s).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size();
}

template<class Finestra>
void mostra(Finestra& finestra)
{
    finestra.show();
    elabora();
    if constexpr (std::is_base_of_v<QDialog, Finestra>)
        QTest::keyClick(&finestra, Qt::Key_Escape);
    else
        finestra.close();
    elabora();
}

/// A screen goes with its closing.
template<class Schermata>
void schermata()
{
    QPointer<Schermata> schermo = new Schermata;
    schermo->carica();
    mostra(*schermo);
    EXPECT_TRUE(schermo.isNull());
}

void elencoLdv()
{
    frmRicercaGia ricerca;
    ricerca.setTipoRicerca(1);
    ricerca.setCodiceCliente(u"1001"_s);
    ricerca.setFiliale(u"MI"_s);
    mostra(ricerca);
}

void soggetti()
{
    frmRicerca ricerca;
    ricerca.setStringaConnessione(impostazioni().percorsoDatabase);
    ricerca.setNomeTabella(u"clien"_s);
    ricerca.setClienti_Fornitori(1);
    mostra(ricerca);
}

template<class Dialogo>
void dialogo()
{
    Dialogo finestra;
    mostra(finestra);
}

struct Apertura
{
    const char* nome;
    void (*apri)();
    qint64 concesso;
};

void apriVolte(const Apertura& apertura, int quante)
{
    for (int volta = 0; volta < quante; ++volta)
        apertura.apri();
}

/// What the toolkit itself keeps of a window.
void nudo()
{
    QDialog finestra;
    QLineEdit campo(&finestra);
    mostra(finestra);
}

constexpr Apertura aperture[] = {
    {"nudo", nudo, niente},
    {"frmGiacenza", schermata<frmGiacenza>, delleTendine},
    {"frmGestGia", schermata<frmGestGia>, delleTendine},
    {"frmRiconsegna", schermata<frmRiconsegna>, delleTendine},
    {"frmCalendario", dialogo<frmCalendario>, delCalendario},
    {"frmRifiuto", dialogo<frmRifiuto>, niente},
    {"frmPorto", dialogo<frmPorto>, niente},
    {"frmRicerca", soggetti, niente},
    {"frmRicercaGia", elencoLdv, niente},
};

class MilleVolte : public testing::TestWithParam<std::tuple<Apertura, std::string>>
{
protected:
    MilleVolte()
    {
        riempiDeposito(mBase);
        impostazioni().percorsoDatabase = mBase.stringa();
    }
    ~MilleVolte() override { impostazioni() = {}; }

    /// None to count in a file.
    qsizetype connessioni() const { return std::get<1>(GetParam()) == "sqlite" ? 0 : sessioni(mBase).size(); }

    BancaDati mBase{std::get<1>(GetParam())};
};

} // namespace

INSTANTIATE_TEST_SUITE_P(Finestre, MilleVolte,
                         testing::Combine(testing::ValuesIn(aperture), testing::Values("sqlite", "mariadb")),
                         [](const auto& parametro) {
                             return std::string(std::get<0>(parametro.param).nome) + "_" +
                                    std::get<1>(parametro.param);
                         });

TEST_P(MilleVolte, IlProcessoRestaComEra)
{
    const Apertura& apertura = std::get<0>(GetParam());
    apriVolte(apertura, primeVolte);
    const qsizetype maniciPrima = manici();
    const qint64 prima = memoria();
    ASSERT_GT(prima, 0);
    const int quante = volte();
    ASSERT_GT(quante, 0);
    qint64 cresciuta = std::numeric_limits<qint64>::max();
    for (int giro = 1; giro <= giri && cresciuta > apertura.concesso; ++giro) {
        apriVolte(apertura, quante);
        cresciuta = (memoria() - prima) / (giro * quante);
        std::cout << apertura.nome << ": " << cresciuta << " bytes more for each of " << giro * quante
                  << " openings\n";
    }
    RecordProperty("bytes", static_cast<int>(cresciuta));
    EXPECT_LE(cresciuta, apertura.concesso);
    EXPECT_EQ(manici(), maniciPrima);
    // The server ends a session some time after its workstation has gone.
    EXPECT_TRUE(QTest::qWaitFor([this] { return connessioni() == 0; }, millisecondiServer))
        << connessioni() << " sessions are still open";
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty());
}
