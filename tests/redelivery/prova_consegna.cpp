#include "base/impostazioni.h"
#include "data/riconsegne.h"
#include "dialogs/frmPorto.h"
#include "redelivery/riconsegnadiprova.h"
#include "support/modale.h"
#include "support/stampa.h"

#include <QCoreApplication>
#include <QLabel>
#include <QMessageBox>
#include <QScopeGuard>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <utility>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

namespace {

/// The hand-over to an issuer that does what it likes.
class Consegna : public RiconsegnaDiProva
{
protected:
    int emesse() const { return static_cast<int>(mEmissioni.chiamate.filter(u"emetti"_s).size()); }
};

INSTANTIATE_TEST_SUITE_P(Basi, Consegna, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(Consegna, CioCheSiLanciaPrimaDiEmettereFermaIlRestoESpegneIlBottone)
{
    mEmissioni.allInizio = [] { throw std::runtime_error("ignota"); };
    cerca(u"950"_s);
    EXPECT_THAT(emetti(), SizeIs(2)) << "the context and the connection string, and no more";
    EXPECT_THAT(mMessaggi.prendi(), IsEmpty());
    EXPECT_EQ(stato()->text(), u"ignota"_s);
    EXPECT_FALSE(bottoneAcceso());
    EXPECT_EQ(mEmissioni.vivi, 0);
}

TEST_P(Consegna, IlPiedeDelleImpostazioniVaConIlContesto)
{
    const QTemporaryDir cartella;
    QFile ini(cartella.filePath(u"gest.ini"_s));
    ASSERT_TRUE(ini.open(QIODevice::WriteOnly));
    ini.write("[Lettere]\nPiede1=P. IVA 01234567897\nPiede3=R.E.A. TO-123456\n");
    ini.close();
    impostazioni().percorsoFileIni = ini.fileName();
    cerca(u"950"_s);
    emetti();
    ASSERT_EQ(emesse(), 1);
    EXPECT_EQ(mEmissioni.contesti.back().piede,
              (QStringList{u"P. IVA 01234567897"_s, u"R.E.A. TO-123456"_s}));
}

TEST_P(Consegna, UnFileDelleImpostazioniRifiutatoFermaPrimaDiEmettere)
{
    const QTemporaryDir cartella;
    impostazioni().percorsoFileIni = cartella.path();
    cerca(u"950"_s);
    emetti();
    EXPECT_EQ(emesse(), 0);
    EXPECT_EQ(stato()->text(),
              u"Il file \"%1\" non è stato letto: non è un file normale."_s.arg(cartella.path()));
}

TEST_P(Consegna, AncheCioCheNonEUnaEccezioneSiFerma)
{
    mEmissioni.durante = [] { throw 7; };
    cerca(u"950"_s);
    emetti();
    EXPECT_EQ(stato()->text(), u"L'emissione si è interrotta per un errore sconosciuto."_s);
    EXPECT_FALSE(bottoneAcceso());
}

TEST_P(Consegna, LaSchermataDistruttaNelMezzoFinisceInSilenzio)
{
    mEmissioni.durante = [this] { delete mSchermata; };
    cerca(u"950"_s);
    emetti();
    EXPECT_TRUE(mSchermata.isNull());
    EXPECT_EQ(mEmissioni.vivi, 0);

    mEmissioni.durante = [this] {
        delete mSchermata;
        throw Errore(u"carta finita"_s);
    };
    cerca(u"950"_s);
    emetti();
    EXPECT_TRUE(mSchermata.isNull());
}

TEST_P(Consegna, CioCheLEmittenteRaccontaPassaDallaPortaSopraLaSchermata)
{
    QList<QWidget*> padri;
    mMessaggi.mentreAperto([&](QWidget* padre, const Messaggio&) { padri << padre; });
    mEmissioni.durante = [this] {
        const Contesto contesto = mEmissioni.contesti.back();
        contesto.racconta({u"non si può"_s});
        contesto.racconta({u"carta finita"_s, Tono::guasto});
        delete mSchermata;
        contesto.racconta({u"la schermata non c'è più"_s});
    };
    cerca(u"950"_s);
    QWidget* schermata = mSchermata;
    emetti();
    EXPECT_THAT(mMessaggi.prendi(),
                ElementsAre(Messaggio{u"non si può"_s, Stile::avviso, titoloApplicazione()},
                            Messaggio{u"carta finita"_s, Stile::critico, titoloApplicazione()},
                            Messaggio{u"la schermata non c'è più"_s, Stile::avviso, titoloApplicazione()}));
    EXPECT_EQ(padri, (QList<QWidget*>{schermata, schermata, nullptr}));
}

TEST_P(Consegna, LeParoleDelGuastoStannoDietroLaRigaDiStato)
{
    mEmissioni.durante = [this] {
        const Contesto contesto = mEmissioni.contesti.back();
        contesto.racconta({u"carta finita"_s, Tono::guasto, u"HY000: out of paper"_s});
        contesto.racconta({u"si ferma qui"_s});
    };
    cerca(u"950"_s);
    emetti();
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"carta finita"_s, u"si ferma qui"_s));
    EXPECT_EQ(stato()->text(), u"Emessa da 950"_s);
    EXPECT_EQ(stato()->toolTip(), u"Emessa da 950 HY000: out of paper"_s);
}

TEST_P(Consegna, LaScatolaDellEmittenteStaSopraLaSchermataInPrimoPiano)
{
    const PortaMessaggi registro = impostaPortaMessaggi({});
    const auto rimetti = qScopeGuard([&] { impostaPortaMessaggi(registro); });
    mEmissioni.durante = [this] {
        const QuandoAperta<QMessageBox> intanto([this](QMessageBox& scatola) {
            EXPECT_TRUE(mSchermata->windowHandle()->flags().testFlag(Qt::WindowStaysOnTopHint));
            EXPECT_TRUE(scatola.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
            EXPECT_EQ(scatola.parentWidget(), mSchermata);
            EXPECT_EQ(scatola.windowTitle(), titoloApplicazione());
            EXPECT_EQ(scatola.icon(), QMessageBox::Warning);
            EXPECT_EQ(scatola.text(), u"<b>non</b> si può"_s);
            EXPECT_EQ(scatola.textFormat(), Qt::PlainText);
            scatola.accept();
        });
        mEmissioni.contesti.back().racconta({u"<b>non</b> si può"_s});
    };
    cerca(u"950"_s);
    emetti();
    EXPECT_EQ(stato()->text(), u"Emessa da 950"_s) << "the box was read, and the issue went on";
}

TEST_P(Consegna, IlBottonePremutoDiNuovoMentreSiEmetteNonFaNulla)
{
    int finestre = 0;
    bool premuto = false;
    mEmissioni.durante = [&] {
        if (std::exchange(premuto, true))
            return;
        QObject osservatore;
        QTimer guarda(&osservatore);
        QObject::connect(&guarda, &QTimer::timeout, &osservatore, [&] {
            if (QWidget* aperta = QApplication::activeModalWidget()) {
                ++finestre;
                aperta->close();
            }
        });
        guarda.start(0);
        clicca("cmdRiconsegna");
    };
    cerca(u"950"_s);
    emetti();
    EXPECT_EQ(finestre, 0);
    EXPECT_EQ(emesse(), 1);
    EXPECT_FALSE(bottoneAcceso());
}

TEST_P(Consegna, LaScorciatoiaEmetteCioCheLaDataAppenaScrittaTrova)
{
    cerca(u"950"_s);
    scrivi("txtLDV", u"951"_s);
    scrivi("txtDataLdv", u"12112026"_s);
    mMessaggi.rispondi(Risposta::si);
    {
        const QuandoAperta<frmPorto> intanto([](frmPorto& porto) { porto.close(); });
        scorciatoia(Qt::Key_V);
    }
    EXPECT_EQ(mMessaggi.testi(),
              QStringList(u"Sono presenti n.2 riconsegne emettere una nuova riconsegna?"_s));
    ASSERT_EQ(emesse(), 1);
    EXPECT_EQ(mEmissioni.chiamate.last(), u"emetti 951"_s);
    EXPECT_EQ(mEmissioni.contesti.back().numeroGiacenza, u"51"_s) << "not the one shown before";
}

TEST_P(Consegna, OltreISediciBitIlConteggioEUnErrore)
{
    Connessione connessione = mBase.connessione();
    if (GetParam() == "mariadb")
        connessione.esegui(u"set session max_recursive_iterations=40000"_s);
    const QString fino =
        u"with recursive n(i) as (select 1 union all select i+1 from n where i<%1) select i from n"_s;
    Recordset righe;
    righe.apri(connessione, fino.arg(32767));
    EXPECT_EQ(ContaRecord(righe), 32767);
    EXPECT_EQ(righe.valore(0), u"1"_s) << "the first is current again";
    righe.apri(connessione, fino.arg(32768));
    EXPECT_THROW(ContaRecord(righe), ErroreConversione);
}

} // namespace
