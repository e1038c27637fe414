// The line that says that the archive is waited for: when it is there, and that nothing else moves for it.

#include "registration/registrazionediprova.h"

#include "data/archivio.h"
#include "support/stampa.h"

#include <giacenza/RicercaTabella.h>

#include <QGuiApplication>
#include <QLabel>
#include <QMap>

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const QString attesa = u"Attendo l'archivio…"_s;

class AttesaRegistrazione : public RegistrazioneDiProva
{
protected:
    /// A waybill on the screen, and the turn of the loop behind it, which ends the lookup.
    void cercata()
    {
        consegna(u"4711"_s);
        QCoreApplication::processEvents();
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, AttesaRegistrazione, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

/// What happens to the widgets of a window while this lives.
class Osservatore : public QObject
{
public:
    explicit Osservatore(QWidget* finestra) : mFinestra(finestra) { qApp->installEventFilter(this); }

    bool eventFilter(QObject* oggetto, QEvent* evento) override
    {
        auto* controllo = qobject_cast<QWidget*>(oggetto);
        if (!controllo || controllo->window() != mFinestra)
            return false;
        if (evento->type() == QEvent::Paint)
            ++dipinti[controllo];
        if (evento->type() == QEvent::Move || evento->type() == QEvent::Resize)
            mossi << oggetto->objectName();
        return false;
    }

    QMap<const QWidget*, int> dipinti;
    QStringList mossi;

private:
    QWidget* mFinestra;
};

TEST_P(AttesaRegistrazione, SiDipingeLaSolaRigaPrimaEDopoENienteSiMuove)
{
    cercata();
    mSchermata->stato(u"ciò che diceva"_s);
    c("cmdEsci")->setFocus(); // no cursor blinks there
    QCoreApplication::processEvents();
    const auto* riga = qobject_cast<QLabel*>(c("lblStato"));
    const QRect posto = riga->geometry();

    Osservatore osservatore(mSchermata);
    mSchermata->connessione();
    EXPECT_EQ(riga->text(), attesa);
    EXPECT_EQ(osservatore.dipinti.value(riga), 1) << "at once";
    mSchermata->connessione();
    EXPECT_EQ(osservatore.dipinti.value(riga), 1) << "once for each operation";
    // The end of the operation, and no more: what would only be asked to be painted is not yet.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::MetaCall);
    EXPECT_EQ(riga->text(), u"ciò che diceva"_s);
    EXPECT_EQ(osservatore.dipinti.value(riga), 2) << "a quick one does not wait for the next frame";
    QCoreApplication::processEvents();
    QCoreApplication::processEvents();
    EXPECT_EQ(osservatore.dipinti.value(riga), 2);
    EXPECT_THAT(osservatore.mossi, IsEmpty());
    EXPECT_EQ(riga->geometry(), posto);
    // Around the line only what lies under it is drawn, within its rectangle.
    for (auto dipinto = osservatore.dipinti.cbegin(); dipinto != osservatore.dipinti.cend(); ++dipinto)
        EXPECT_TRUE(dipinto.key() == riga || dipinto.key()->isAncestorOf(riga))
            << dipinto.key()->objectName().toStdString();
}

TEST_P(AttesaRegistrazione, AlSalvataggioSiVedePrimaDiOgniIstruzione)
{
    cercata();
    QStringList senza;
    int viste = 0;
    impostaTraccia([&](EventoDati evento, const QString& testo) {
        if (evento != EventoDati::istruzione)
            return;
        ++viste;
        const QCursor* cursore = QGuiApplication::overrideCursor();
        if (mostrato("lblStato") != attesa || !cursore || cursore->shape() != Qt::WaitCursor)
            senza << testo;
    });
    // As a box does: the operation is over while it is read.
    mMessaggi.mentreAperto([](QWidget*, const Messaggio&) { QCoreApplication::processEvents(); });
    clicca("cmdSalva");
    guarisce();
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Giacenza aggiunta in database."_s));
    EXPECT_GT(viste, 5);
    EXPECT_THAT(senza, IsEmpty());
    EXPECT_EQ(mostrato("lblStato"), u"Avviso di giacenza 42_2026 prodotto."_s);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_P(AttesaRegistrazione, DiUnaSchermataNascostaNonSiVedeNiente)
{
    cercata();
    mSchermata->stato(u"ciò che diceva"_s);
    mSchermata->hide();
    mSchermata->connessione();
    EXPECT_EQ(mostrato("lblStato"), u"ciò che diceva"_s);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_P(AttesaRegistrazione, AncheMentreSiApreLElencoDelleSpedizioni)
{
    cercata();
    QString durante;
    impostaTraccia([&](EventoDati evento, const QString& testo) {
        if (evento == EventoDati::istruzione && !testo.contains("@@"_L1)) {
            durante = mostrato("lblStato");
            throw ErroreDatabase(u"HY000"_s, 1, u"guasto di prova"_s, testo);
        }
    });
    scrivi("txtFiliale", {});
    mMessaggi.mentreAperto([](QWidget* padre, const Messaggio&) { padre->close(); });
    clicca("cmdCercaLdv");
    QCoreApplication::processEvents();
    guarisce();
    EXPECT_THAT(mMessaggi.testi(), ElementsAre(u"Non ci sono spedizioni per il cliente selezionato."_s));
    EXPECT_EQ(durante, attesa);
    EXPECT_NE(mostrato("lblStato"), attesa);
}

TEST_P(AttesaRegistrazione, EMentreSiApreQuelloDelleFiliali)
{
    class Elenco : public RicercaTabella
    {
    public:
        explicit Elenco(std::function<void()> aperto) : mAperto(std::move(aperto)) {}
        void setPercorsoDatabase(const QString&) override {}
        void setScelta(Scelta) override {}
        void mostra(const QString&, const QString&, QWidget*) override { mAperto(); }

    private:
        std::function<void()> mAperto;
    };
    QString durante;
    registraParte(QString::fromUtf16(classeRicercaTabella),
                  [&] { return std::make_unique<Elenco>([&] { durante = mostrato("lblStato"); }); });
    apri();
    tasto("txtFilialeGia", Qt::Key_F12);
    registraParte(QString::fromUtf16(classeRicercaTabella), {});
    EXPECT_EQ(durante, attesa);
    EXPECT_EQ(mostrato("lblStato"), QString());
}

} // namespace
