// What the registration screen takes from a calendar, a table or the list of goods.

#include "dialogs/frmCalendario.h"
#include "registration/registrazionediprova.h"
#include "support/modale.h"
#include "support/stampa.h"
#include "support/trova.h"

#include <giacenza/RicercaTabella.h>

#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;

namespace {

class Scelte : public RegistrazioneDiProva
{};

INSTANTIATE_TEST_SUITE_P(Basi, Scelte, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(Scelte, IlGiornoSiSceglieDalCalendario)
{
    consegna(u"4711"_s);
    const QuandoAperta<frmCalendario> intanto([](frmCalendario& dialogo) {
        EXPECT_EQ(dialogo.DataAttuale(), QDate(2026, 11, 12)) << "from the working date";
        QTest::mouseClick(trova<QWidget>(dialogo, u"cmdReset"_s), Qt::LeftButton);
    });
    scrivi("txtDataGia", u"01112026"_s);
    clicca("cmdData");
    EXPECT_EQ(mostrato("txtDataGia"), u"21/11/2026"_s);
    EXPECT_EQ(mostrato("lblDataLav"), u"21/11/2026"_s);
    EXPECT_EQ(mostrato("barGiorniSosta"), u"0"_s);
}

TEST_P(Scelte, LaFilialeSiSceglieDallaTabella)
{
    /// A table search that gives one row back at once.
    class Tabella : public RicercaTabella
    {
    public:
        void setPercorsoDatabase(const QString& percorso) override { mPercorso = percorso; }
        void setScelta(Scelta scelta) override { mScelta = std::move(scelta); }
        void mostra(const QString& istruzione, const QString& titolo, QWidget*) override
        {
            EXPECT_EQ(istruzione, u"select codice, descrizione from filiali;"_s);
            EXPECT_EQ(titolo, u"Ricerca Filiale"_s);
            EXPECT_FALSE(mPercorso.isEmpty());
            mScelta({u"BO"_s, u"Bologna"_s});
        }

    private:
        QString mPercorso;
        Scelta mScelta;
    };
    registraParte(QString::fromUtf16(classeRicercaTabella), [] { return std::make_unique<Tabella>(); });
    apri();
    tasto("txtFilialeGia", Qt::Key_F12);
    registraParte(QString::fromUtf16(classeRicercaTabella), {});
    EXPECT_EQ(mostrato("txtFilialeGia"), u"BO"_s);
    EXPECT_EQ(mostrato("barFilialeGia"), u"Bologna"_s);
}

TEST_P(Scelte, F11TieneLaNaturaDellaMerce)
{
    apri();
    auto* natura = qobject_cast<QComboBox*>(c("cmbNaturaMerce"));
    natura->setEditText(u"vino sfuso"_s);
    tasto("cmbNaturaMerce", Qt::Key_F11);
    EXPECT_EQ(natura->count(), 2);
    EXPECT_EQ(natura->itemText(0), u"VEDI DDT"_s);
    EXPECT_EQ(natura->itemText(1), u"VINO SFUSO"_s);
    EXPECT_EQ(natura->currentText(), u"vino sfuso"_s);
    QFile file(mCartella.filePath(u"listbox.dat"_s));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll().simplified(), QByteArray("VEDI DDT VINO SFUSO"));
    tasto("cmbNaturaMerce", Qt::Key_F11);
    EXPECT_THAT(
        mMessaggi.prendi(),
        ElementsAre(Messaggio{u"Impossibile aggiungere il valore nella lista del controllo Natura merce"_s,
                              Stile::informazione, u"Gestione Trasporti"_s}));
}

TEST_P(Scelte, LaNaturaScrittaATastiNonSiCompletaDaSola)
{
    QFile file(mCartella.filePath(u"listbox.dat"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("VEDI DDT\nSCATOLE GRANDI\n");
    file.close();
    apri();
    auto* natura = qobject_cast<QComboBox*>(c("cmbNaturaMerce"));
    natura->setFocus();
    natura->clearEditText();
    QTest::keyClicks(natura, u"scatole"_s);
    EXPECT_EQ(natura->currentText(), u"scatole"_s);
    tasto("cmbNaturaMerce", Qt::Key_F11);
    EXPECT_EQ(natura->itemText(natura->count() - 1), u"SCATOLE"_s);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll().simplified(), QByteArray("VEDI DDT SCATOLE GRANDI SCATOLE"));
}

TEST_P(Scelte, UnElencoIlleggibileSiDiceQuandoLaSchermataCE)
{
    ASSERT_TRUE(QDir(mCartella.path()).mkdir(u"listbox.dat"_s));
    bool visibile = false;
    mMessaggi.mentreAperto(
        [&](QWidget* padre, const Messaggio&) { visibile = padre->window()->isVisible(); });
    apri();
    QCoreApplication::processEvents();
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(Messaggio{u"Impossibile caricare i dati nel controllo Natura merce"_s,
                                      Stile::critico, u"Gestione Trasporti"_s}));
    EXPECT_TRUE(visibile);
    EXPECT_TRUE(mSchermata->isVisible());
    EXPECT_EQ(qobject_cast<QComboBox*>(c("cmbNaturaMerce"))->count(), 0);
}

} // namespace
