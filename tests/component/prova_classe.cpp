// The public class with the registration screen itself, on a database.

#include "base/forme.h"
#include "base/impostazioni.h"
#include "component/registraforme.h"
#include "data/archivio.h"
#include "registration/frmGiacenza.h"
#include "screens/campi.h"
#include "screens/schermatadiprova.h"
#include "support/modale.h"
#include "support/stampa.h"
#include "support/trova.h"

#include <giacenza/cGiacenza.h>

#include <QAbstractButton>
#include <QFileInfo>
#include <QMessageBox>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::IsEmpty;

void giacenza::registraForme(Forme& forme)
{
    forme.registra<frmGiacenza>(u"frmGiacenza"_s);
}

namespace {

const QString dodici = u"12/11/2026"_s;
const QString milano = u"MI"_s;
const QString ferramenta = u"1001"_s;

/// The bed's database, print module and day; the screen is opened by the class. Message boxes are real.
class Classe : public SchermataDiProva
{
protected:
    Classe() { impostaPortaMessaggi({}); }
    ~Classe() override
    {
        impostaTraccia({});
        mClasse.reset();
        svuota();
    }

    std::unique_ptr<Schermata> crea() const override { return std::make_unique<frmGiacenza>(); }

    static void svuota()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    void consegna(const QString& ldv, const QString& cliente = ferramenta)
    {
        mClasse->NuovaGiacenzaEXT(ldv, dodici, milano, cliente);
        mSchermata = qobject_cast<Schermata*>(Forme::delThread()->caricata(u"frmGiacenza"_s));
        ASSERT_TRUE(mSchermata);
        ASSERT_TRUE(QTest::qWaitForWindowActive(mSchermata));
        QCoreApplication::processEvents();
    }

    /// Every top-level window that can be seen.
    static QWidgetList visibili()
    {
        QWidgetList tutte;
        for (QWidget* finestra : QApplication::topLevelWidgets())
            if (finestra->isVisible())
                tutte << finestra;
        return tutte;
    }

    static ErroreDatabase erroreDi(const std::function<void()>& azione)
    {
        try {
            azione();
        } catch (const ErroreDatabase& errore) {
            return errore;
        }
        ADD_FAILURE() << "non è fallita";
        return {{}, 0, {}};
    }

    static void premeOk(QMessageBox& scatola) { scatola.buttons().constFirst()->click(); }

    std::unique_ptr<cGiacenza> mClasse = std::make_unique<cGiacenza>();
};

INSTANTIATE_TEST_SUITE_P(Basi, Classe, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(Classe, LaConsegnaSiCercaUnaVoltaAncheASchermataGiaAttiva)
{
    EXPECT_EQ(istruzioni([&] { consegna(u"4711"_s); }).filter(u"SELECT letve00f"_s).size(), 1);
    EXPECT_EQ(mostrato("txtDestinatario"), u"Utensileria del Lago"_s);
    EXPECT_TRUE(mSchermata->isActiveWindow());
    EXPECT_EQ(istruzioni([&] { consegna(u"4714"_s); }).filter(u"SELECT letve00f"_s).size(), 1);
    EXPECT_EQ(mostrato("txtDestinatario"), u"Casalinghi Rossi"_s);
    EXPECT_THAT(istruzioni([&] {
                    mClasse->NuovaGiacenza();
                    QCoreApplication::processEvents();
                }),
                IsEmpty())
        << "shown again, nothing handed over";
}

TEST_P(Classe, UnMessaggioNonRipeteLaConsegna)
{
    consegna(u"4714"_s);
    EXPECT_THAT(
        istruzioni([&] {
            const QuandoAperta<QMessageBox> intanto(premeOk);
            clicca("cmdSalva"); // refused: it is held already
            mSchermata->activateWindow();
            QCoreApplication::processEvents();
        }),
        ElementsAre(testing::ResultOf([](const QString& i) { return i.left(13); }, u"select Lerico"_s)));
}

TEST_P(Classe, SottoUnMessaggioApertoLaConsegnaAspetta)
{
    consegna(u"4711"_s);
    {
        const QuandoAperta<QMessageBox> intanto([this](QMessageBox& scatola) {
            EXPECT_EQ(scatola.text(), u"Giacenza aggiunta in database."_s);
            mClasse->NuovaGiacenzaEXT(u"4712"_s, dodici, milano, ferramenta);
            QCoreApplication::processEvents();
            EXPECT_EQ(mostrato("lblNrGia"), u"42"_s);
            premeOk(scatola);
        });
        clicca("cmdSalva");
    }
    EXPECT_THAT(mStampe.filter(u"documento"_s), ElementsAre(u"documento 42_2026"_s))
        << "the notice is of the held shipment that was saved";
    EXPECT_EQ(mBase.leggi(u"select GINRAV from giace00f where GINRLV='4711'"_s), u"1"_s);
    EXPECT_TRUE(QTest::qWaitFor([this] { return mostrato("txtRifMitt") == u"ORD-882"_s; }))
        << "and then it comes";
}

TEST_P(Classe, IlDatabaseCheNonRispondeTornaAllOspiteComEENonMostraNulla)
{
    QStringList sbagliate = {u"DRIVER={Non esiste};SERVER=127.0.0.1"_s};
    if (GetParam() == "sqlite") {
        // Not the driver's word: where the folder is there, it would make an empty file instead of failing.
        const QTemporaryDir cartella;
        const QString mancante = cartella.filePath(u"depòsito.db"_s);
        mClasse->setPercorsoDatabase(u"DRIVER={SQLite3};Database="_s + mancante);
        const ErroreDatabase errore = erroreDi([&] { mClasse->NuovaGiacenza(); });
        EXPECT_EQ(errore.sqlstate(), u"08001"_s);
        EXPECT_EQ(errore.testo(), u"Il file dell'archivio non c'è: %1"_s.arg(mancante));
        EXPECT_FALSE(QFileInfo::exists(mancante));
        EXPECT_THAT(visibili(), IsEmpty());
    } else {
        sbagliate << u"DRIVER={MariaDB Unicode};SERVER=127.0.0.1;PORT=1;UID=x;PWD=x;DATABASE=x"_s
                  << mBase.stringa().replace(u"PWD="_s, u"PWD=sbagliata"_s);
    }
    const QSignalSpy fine(mClasse.get(), &cGiacenza::fine);
    for (const QString& stringa : sbagliate) {
        SCOPED_TRACE(stringa.toStdString());
        const ErroreDatabase atteso = erroreDi([&] { Connessione().apri(stringa); });
        mClasse->setPercorsoDatabase(stringa);
        const ErroreDatabase errori[] = {
            erroreDi([&] { mClasse->NuovaGiacenzaEXT(u"4711"_s, dodici, milano, ferramenta); }),
            erroreDi([&] { mClasse->NuovaGiacenza(); }),
        };
        for (const ErroreDatabase& errore : errori) {
            EXPECT_NE(errore.sqlstate(), QString());
            EXPECT_EQ(errore.sqlstate(), atteso.sqlstate());
            EXPECT_EQ(errore.codiceNativo(), atteso.codiceNativo());
            EXPECT_EQ(errore.testo(), atteso.testo());
        }
        svuota();
        EXPECT_THAT(visibili(), IsEmpty());
    }
    EXPECT_EQ(fine.size(), 0);

    mClasse->setPercorsoDatabase(mBase.stringa());
    consegna(u"4711"_s);
    EXPECT_EQ(mostrato("txtDestinatario"), u"Utensileria del Lago"_s) << "the next opening is a new one";
}

TEST_P(Classe, LeTabelleCheMancanoFermanoLApertura)
{
    mBase.esegui(u"drop table porto;"_s);
    const ErroreDatabase errore = erroreDi([&] { mClasse->NuovaGiacenza(); });
    EXPECT_EQ(errore.sqlstate(), u"42S02"_s);
    EXPECT_EQ(errore.testo(), u"Nell'archivio mancano, o questo utente non le vede, le tabelle: porto"_s);
    EXPECT_THAT(visibili(), IsEmpty());
}

TEST_P(Classe, FineUnaVoltaEDopoLaChiusuraDelCollegamento)
{
    cGiacenza altra;
    QStringList accaduto;
    QObject::connect(mClasse.get(), &cGiacenza::fine, mClasse.get(), [&] { accaduto << u"fine"_s; });
    QObject::connect(&altra, &cGiacenza::fine, &altra, [&] { accaduto << u"fine dell'altra"_s; });
    consegna(u"4711"_s);
    altra.NuovaGiacenza();
    EXPECT_EQ(qobject_cast<Schermata*>(Forme::delThread()->caricata(u"frmGiacenza"_s)), mSchermata)
        << "the two share it";
    impostaTraccia([&](EventoDati evento, const QString&) {
        if (evento == EventoDati::chiusura)
            accaduto << u"collegamento chiuso"_s;
    });
    clicca("cmdEsci");
    svuota();
    impostaTraccia({});
    EXPECT_THAT(accaduto, ElementsAre(u"collegamento chiuso"_s, u"fine"_s, u"fine dell'altra"_s));
    EXPECT_TRUE(mSchermata.isNull());

    accaduto.clear();
    consegna(u"4711"_s);
    mSchermata->close();
    svuota();
    EXPECT_THAT(accaduto, ElementsAre(u"fine"_s)) << "the close box says it too; the other is not bound";
}

TEST_P(Classe, DistruttaSottoUnMessaggioApertoAbbandonaIlResto)
{
    consegna(u"4711"_s);
    int fini = 0;
    QObject::connect(mClasse.get(), &cGiacenza::fine, mClasse.get(), [&] { ++fini; });
    {
        const QuandoAperta<QMessageBox> intanto([this](QMessageBox&) { mClasse.reset(); });
        QTest::keyClick(c("cmdSalva"), Qt::Key_Space);
    }
    svuota();
    EXPECT_TRUE(mSchermata.isNull());
    EXPECT_EQ(fini, 0);
    EXPECT_THAT(visibili(), IsEmpty());
    EXPECT_EQ(mBase.righe(u"select GINRGI,GINRAV from giace00f where GINRLV='4711'"_s),
              (QList<QStringList>{{u"42"_s, u"NULL"_s}}))
        << "saved; its notice is not issued";
    EXPECT_THAT(mStampe, IsEmpty());
}

TEST_P(Classe, ChiusaSottoIlMessaggioDiUnaConsegnaNonVaAvanti)
{
    mClasse->NuovaGiacenzaEXT(u"4711"_s, dodici, milano, u"77"_s);
    // Behind the lookup, which waits for the event loop.
    const QuandoAperta<QMessageBox> intanto([this](QMessageBox& scatola) {
        EXPECT_EQ(scatola.text(), u"Codice Cliente Inesistente"_s);
        mClasse.reset();
    });
    EXPECT_TRUE(QTest::qWaitFor([this] { return !mClasse; }));
    svuota();
    EXPECT_THAT(visibili(), IsEmpty());
}

} // namespace
