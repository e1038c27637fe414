// The server freezes, ends, and comes back on another port, while a screen or the desk is open.

#include "dintorni/serverproprio.h"

#include "base/parti.h"
#include "desk/deskdiprova.h"
#include "emissione/emittente.h"
#include "management/gestionediprova.h"
#include "redelivery/emissionediprova.h"
#include "registration/registrazionediprova.h"

#include <QLabel>

#include <memory>

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;
using testing::AnyOf;
using testing::HasSubstr;

namespace {

/// One server for all of these tests: its first start takes the longest.
class Server : public testing::Environment
{
public:
    void SetUp() override { mServer = std::make_unique<ServerProprio>(mCartella.filePath(u"server"_s)); }
    void TearDown() override { mServer.reset(); }
    static ServerProprio& suo() { return *mServer; }

private:
    QTemporaryDir mCartella;
    static inline std::unique_ptr<ServerProprio> mServer;
};
// NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the framework owns it.
const testing::Environment* const ambiente = testing::AddGlobalTestEnvironment(new Server);

const QString caduta = u"La connessione con l'archivio è caduta."_s;
const QString nonRisponde = u"Il server dell'archivio non risponde."_s;

/// A fixture of a screen or of the desk on that server.
template<class Prova>
class Altrove : public Prova
{
protected:
    /// The screen that was opened with it waits so long for a server that does not answer, and for one that
    /// is busy.
    Altrove() { impostazioni().percorsoDatabase = ServerProprio::stringa(this->mBase.stringa(), mPorta, 3); }
    /// The test's databases are found, and dropped, where they were made.
    void TearDown() override
    {
        Server::suo().uccidi();
        Server::suo().riavviaSu(mPorta);
    }

    /// Takes an operator through it. premi: what he does, and what he was told then; fatto: whether it is
    /// done.
    void attraversa(const std::function<QString()>& premi, const std::function<bool()>& fatto)
    {
        Server::suo().gela();
        // Whoever waits for an answer does not know what became of it; whoever opens anew got none.
        EXPECT_THAT(premi().toStdString(),
                    AnyOf(HasSubstr(caduta.toStdString()), HasSubstr(nonRisponde.toStdString())));
        Server::suo().uccidi();
        EXPECT_THAT(premi().toStdString(),
                    AnyOf(HasSubstr(caduta.toStdString()), HasSubstr(nonRisponde.toStdString())));
        Server::suo().riavviaAltrove();
        ASSERT_NE(Server::suo().porta(), mPorta);
        EXPECT_THAT(premi().toStdString(), HasSubstr(nonRisponde.toStdString()))
            << "nobody listens where it was";
        // What the host does: cGiacenza::setPercorsoDatabase().
        impostazioni().percorsoDatabase =
            ServerProprio::stringa(this->mBase.stringa(), Server::suo().porta(), 20);
        const QString detto = premi();
        EXPECT_TRUE(fatto()) << detto.toStdString();
    }

    Valore leggi(const QString& istruzione) const
    {
        Connessione connessione;
        connessione.apri(impostazioni().percorsoDatabase);
        Recordset righe;
        righe.apri(connessione, istruzione);
        return righe.valore(0);
    }

    QString detto(const QString& stato) { return this->mMessaggi.testi().join(u'\n') + stato; }

    const QString mPorta = Server::suo().porta();
};

class AltroveRegistrazione : public Altrove<RegistrazioneDiProva>
{};
class AltroveGestione : public Altrove<GestioneDiProva>
{};
class AltroveRiconsegna : public Altrove<EmissioneDiProva>
{};
class AltroveDesk : public Altrove<DeskDiProva>
{};

INSTANTIATE_TEST_SUITE_P(Basi, AltroveRegistrazione, testing::Values("mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);
INSTANTIATE_TEST_SUITE_P(Basi, AltroveGestione, testing::Values("mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);
INSTANTIATE_TEST_SUITE_P(Basi, AltroveRiconsegna, testing::Values("mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);
INSTANTIATE_TEST_SUITE_P(Basi, AltroveDesk, testing::Values("mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(AltroveRegistrazione, LaSchermataApertaSalvaLaDovEIlServer)
{
    consegna(u"4711"_s);
    scrivi("txtDescGia", u"Assente"_s);
    attraversa(
        [this] {
            clicca("cmdSalva");
            const QString tutto = detto(mostrato("lblStato"));
            mMessaggi.prendi();
            return tutto;
        },
        [this] {
            return leggi(u"select count(*) from giace00f join letve00f on LERFGI=GINRGI where GINRLV='4711' "
                         u"and "
                         "GINRAV='1'"_s) == u"1"_s;
        });
}

TEST_P(AltroveGestione, LaSchermataApertaChiudeLaDovEIlServer)
{
    richiamaAvvisato();
    attraversa(
        [this] {
            clicca("cmdBuonFine");
            const QString tutto = detto(mostrato("lblStato"));
            mMessaggi.prendi();
            return tutto;
        },
        [this] { return leggi(u"select GIIMGI from giace00f where GINRGI='39'"_s) == u"16.50"_s; });
}

TEST_P(AltroveRiconsegna, LaSchermataApertaEmetteLaDovEIlServer)
{
    registraParte(QString::fromUtf16(classeEmittenteLdv),
                  [] { return std::make_unique<emissione::EmittenteDeposito>(); });
    cerca(u"950"_s);
    attraversa(
        [this] {
            emetti({.stampa = false});
            const QString tutto = detto(stato()->text());
            mMessaggi.prendi();
            // As the status line says.
            if (tutto.contains(u"uscire e riaprire"_s)) {
                delete mSchermata;
                cerca(u"950"_s);
            }
            return tutto;
        },
        [this] {
            return leggi(u"select count(*) from letve00f where lerico='R' and LERFGI='50'"_s) == u"1"_s;
        });
}

TEST_P(AltroveDesk, LElencoSiRileggeLaDovEIlServer)
{
    attraversa(
        [this] {
            mDesk->aggiorna();
            const auto* lettura = figlio<QLabel>(u"lblLettura");
            attendi([&] { return lettura->text() != u"lettura in corso…"_s; });
            return this->DeskDiProva::detto() + u' ' + lettura->text();
        },
        [this] {
            return DeskDiProva::detto().isEmpty() &&
                   figlio<QLabel>(u"lblLettura")->text().startsWith(u"letto alle"_s) &&
                   !figlio<QLabel>(u"lblLettura")->text().contains(u"non riuscita"_s) &&
                   elenco()->model()->rowCount() == 5;
        });
    scansiona(u"41/2026"_s);
    EXPECT_EQ(pagina(), u"pagCaso"_s);
}

/// The host gives another archive while a screen is open: the number and the row are of one and the same.
TEST_P(AltroveRegistrazione, UnAltroArchivioValeDallaProssimaOperazione)
{
    consegna(u"4711"_s);
    QCoreApplication::processEvents(); // the lookup's end
    const BancaDati altra("mariadb");
    riempiDeposito(altra);
    altra.esegui(u"update ekelvorqzt_tabge00f set UltimoNumGiacenza=700;"_s);
    impostazioni().percorsoDatabase = altra.stringa();
    clicca("cmdSalva");
    EXPECT_EQ(mMessaggi.testi(), QStringList{u"Giacenza aggiunta in database."_s});
    EXPECT_EQ(altra.leggi(u"select GINRGI from giace00f where GINRLV='4711'"_s), u"701"_s);
    EXPECT_EQ(altra.leggi(u"select UltimoNumGiacenza from ekelvorqzt_tabge00f"_s), u"701"_s);
    EXPECT_EQ(mBase.leggi(u"select UltimoNumGiacenza from ekelvorqzt_tabge00f"_s), u"41"_s);
    EXPECT_EQ(mBase.leggi(u"select count(*) from giace00f where GINRLV='4711'"_s), u"0"_s);
}

} // namespace
