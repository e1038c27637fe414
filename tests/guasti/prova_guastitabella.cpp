// Each call of the table search fails in turn, as the registration screen opens it on the branches.

#include "guasti/operazione.h"
#include "registration/registrazionediprova.h"
#include "ricercatabella/ricercatabella.h"
#include "support/modale.h"
#include "support/stampa.h"
#include "support/trova.h"

#include "base/parti.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QTableView>
#include <QTest>

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;

namespace {

class GuastiTabella : public RegistrazioneDiProva
{
protected:
    GuastiTabella()
    {
        registraParte(QString::fromUtf16(classeRicercaTabella),
                      [] { return std::make_unique<RicercaTabellaElenco>(); });
    }
    ~GuastiTabella() override { registraParte(QString::fromUtf16(classeRicercaTabella), {}); }

    void TearDown() override { delete mSchermata; }

    /// The last connection to a file of SQLite that closes has everything written to the disk: not ours.
    Connessione mTenuta = mBase.connessione();
    Cavo mCavo{mBase};
};

INSTANTIATE_TEST_SUITE_P(Basi, GuastiTabella, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

/// Takes the branch BO out of the list, if one opens: it does not when its statement has failed.
class PrendeBologna : public QObject
{
public:
    PrendeBologna() { mBattito = startTimer(0); }

protected:
    void timerEvent(QTimerEvent*) override
    {
        auto* finestra = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!finestra)
            return;
        killTimer(mBattito);
        auto* filtro = trova<QLineEdit>(*finestra, u"txtFiltro"_s);
        QTest::keyClicks(filtro, u"bolo"_s);
        QTest::keyClick(filtro, Qt::Key_Return);
        finestra->close();
    }

private:
    int mBattito;
};

TEST_P(GuastiTabella, OgniIstruzioneDellaTabella)
{
    apri();
    mCavo.prova(GetParam(), mMessaggi,
                {.prepara =
                     [this] {
                         // The screen's own is asked whether it lives, and was cut with the packet before.
                         ASSERT_TRUE(mSchermata->connessione().aperta());
                         scrivi("txtFilialeGia", u"MI"_s);
                         qobject_cast<QLabel*>(c("barFilialeGia"))->clear();
                     },
                 .compi =
                     [this] {
                         const PrendeBologna intanto;
                         mSchermata->activateWindow();
                         ASSERT_TRUE(QTest::qWaitForWindowActive(mSchermata));
                         tasto("txtFilialeGia", Qt::Key_F12);
                     },
                 .righe = [] { return u"nessuna"_s; },
                 .stato = [this] { return mostrato("lblStato"); },
                 .vero =
                     [this](const Accaduto& a) {
                         return a.completo || (a.dettoIlGuasto() && a.scatole.size() == 1 &&
                                               mostrato("txtFilialeGia") == u"MI"_s);
                     },
                 .mostrata =
                     [this] {
                         return mostrato("txtFilialeGia") == u"BO"_s &&
                                mostrato("barFilialeGia") == u"Bologna"_s;
                     }});
}

} // namespace
