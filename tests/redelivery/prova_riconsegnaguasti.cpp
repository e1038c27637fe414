// What fails, or goes, while the re-delivery screen issues.

#include "base/impostazioni.h"
#include "data/archivio.h"
#include "dialogs/frmPorto.h"
#include "redelivery/emissionediprova.h"
#include "support/modale.h"
#include "support/stampa.h"

#include <QDesktopServices>
#include <QLabel>
#include <QTest>
#include <QUrl>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;
using testing::IsEmpty;

namespace {

/// Takes the place of the desktop's programs for files.
class AperturaDiProva : public QObject
{
    Q_OBJECT

public:
    AperturaDiProva() { QDesktopServices::setUrlHandler(u"file"_s, this, "apri"); }
    ~AperturaDiProva() override { QDesktopServices::unsetUrlHandler(u"file"_s); }

    QList<QUrl> aperti;

public Q_SLOTS:
    void apri(const QUrl& file) { aperti << file; }
};

class RiconsegnaGuasti : public EmissioneDiProva
{
protected:
    ~RiconsegnaGuasti() override { impostaTraccia({}); }

    /// Every statement that begins so fails, the connection with it.
    void fallisce(const QString& inizio) { SchermataDiProva::fallisce(inizio, u"08S01"_s); }
};

INSTANTIATE_TEST_SUITE_P(Basi, RiconsegnaGuasti, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(RiconsegnaGuasti, LaLetturaFallitaConsegnaUnRecordVuoto)
{
    cerca(u"950"_s);
    fallisce(u"select * from letve00f"_s);
    EXPECT_EQ(emetti(), consegnaIntera(u"(vuota)"_s)) << "the count opens the connection again";
    EXPECT_FALSE(bottoneAcceso());
}

TEST_P(RiconsegnaGuasti, IlConteggioFallitoNonEmetteELasciaIlBottone)
{
    cerca(u"950"_s);
    fallisce(u"SELECT letve00f.*, giace00f.*"_s);
    EXPECT_THAT(emetti(), IsEmpty());
    EXPECT_EQ(stato()->text(), u"La giacenza non si controlla. La connessione con l'archivio è caduta."_s);
    EXPECT_TRUE(bottoneAcceso());
    impostaTraccia({});
    EXPECT_EQ(emetti(), consegnaIntera(u"950"_s)) << "and then it works";
}

TEST_P(RiconsegnaGuasti, SenzaDatabaseIlPortoSiChiedeLoStesso)
{
    cerca(u"950"_s);
    impostazioni().percorsoDatabase = u"DRIVER={Inesistente}"_s;
    // The screen's connection is open since it was loaded: an issue that is given up releases it.
    emetti({.chiude = Porto::Chiude::annulla});
    EXPECT_THAT(emetti(), IsEmpty()) << "it cannot be checked";
    EXPECT_TRUE(bottoneAcceso());
    const QStringList chiamate = emetti({.controllo = false});
    EXPECT_EQ(chiamate.last(), u"emetti (vuota)"_s);
    EXPECT_FALSE(bottoneAcceso());
}

TEST_P(RiconsegnaGuasti, SenzaEmittenteLoDiceLaRigaDiStatoEIlBottoneSiSpegne)
{
    registraParte(QString::fromUtf16(classeEmittenteLdv), {});
    qputenv("GIACENZA_PARTI", mCartella.path().toUtf8());
    cerca(u"950"_s);
    EXPECT_THAT(emetti(), IsEmpty());
    qunsetenv("GIACENZA_PARTI");
    EXPECT_TRUE(stato()->text().contains(u"EmissioneLdv.cEmittente"_s)) << stato()->text().toStdString();
    EXPECT_FALSE(bottoneAcceso());
}

TEST_P(RiconsegnaGuasti, SoloCioCheNonEStatoEmessoSiDiceNonEmesso)
{
    mEmissioni.esito = QString();
    cerca(u"950"_s);
    emetti();
    EXPECT_EQ(stato()->text(), u"Nessuna lettera di vettura è stata emessa. Per riprovare uscire e riaprire "
                               "questa schermata."_s);
    EXPECT_FALSE(bottoneAcceso());
}

TEST_P(RiconsegnaGuasti, SenzaLaDataNessunaGiacenzaENominataELoSiDice)
{
    cerca(u"950"_s);
    scrivi("txtDataGia", {});
    EXPECT_EQ(emetti({.controllo = false}), consegnaIntera(u"950"_s));
    EXPECT_EQ(mEmissioni.contesti.front().numeroGiacenza, QString());
    EXPECT_EQ(mEmissioni.contesti.front().annoGiacenza, 0);
    EXPECT_EQ(stato()->text(), u"Emessa da 950 Manca la data della giacenza: non si sa di quale giacenza sia "
                               "la LDV."_s);
}

TEST_P(RiconsegnaGuasti, IlDocumentoDellEmittenteSiApreConCtrlO)
{
    const QString file = u"/tmp/LDV_MI_4716_2026.pdf"_s;
    const auto apre = [this] {
        attiva();
        c("txtLDV")->setFocus();
        QTest::keyClick(c("txtLDV"), Qt::Key_O, Qt::ControlModifier);
        return stato()->text();
    };
    mEmissioni.durante = [&] { mEmissioni.contesti.back().documento(file); };
    cerca(u"950"_s);
    EXPECT_EQ(apre(), u"Nessun documento da aprire: stamparne uno prima."_s);
    emetti();
    {
        AperturaDiProva apertura;
        EXPECT_EQ(apre(), u"Emessa da 950"_s);
        EXPECT_THAT(apertura.aperti, testing::ElementsAre(QUrl::fromLocalFile(file)));
    }
    // This platform opens nothing by itself.
    EXPECT_EQ(apre(), u"Il documento non si apre: manca un programma per i PDF. È in "_s + file);
}

TEST_P(RiconsegnaGuasti, UnEmittenteCheLanciaNonFermaLaSchermata)
{
    mEmissioni.durante = [] { throw Errore(u"carta finita"_s); };
    cerca(u"950"_s);
    emetti();
    EXPECT_EQ(stato()->text(), u"carta finita"_s);
    EXPECT_FALSE(bottoneAcceso());
    EXPECT_EQ(mEmissioni.vivi, 0);
}

TEST_P(RiconsegnaGuasti, UnaEccezioneEstraneaNonEsceDalGestore)
{
    mEmissioni.durante = [] { throw std::runtime_error("ignota"); };
    cerca(u"950"_s);
    emetti();
    EXPECT_EQ(stato()->text(), u"ignota"_s);
    EXPECT_FALSE(bottoneAcceso());
}

TEST_P(RiconsegnaGuasti, ChiusaSottoIlDialogoONelMezzoDellEmissioneFinisceInSilenzio)
{
    cerca(u"950"_s);
    {
        const QuandoAperta<frmPorto> intanto([&](frmPorto&) {
            mSchermata->close();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        });
        clicca("cmdRiconsegna");
    }
    EXPECT_THAT(mEmissioni.chiamate, IsEmpty());
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(mSchermata.isNull());

    mEmissioni.durante = [this] { mSchermata->close(); };
    cerca(u"950"_s);
    emetti();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(mSchermata.isNull());
}

} // namespace

#include "prova_riconsegnaguasti.moc"
