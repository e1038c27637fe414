// Workstations, each a process with the screens, at work on one server that is killed and restarted, and on
// one file. How many and how long: GIACENZA_POSTAZIONI, GIACENZA_SECONDI.

#include "grappolo/controllo.h"
#include "support/bancadati.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace giacenza::prove;

namespace {

/// A server of this test's own, which may be killed.
class ServerProprio
{
public:
    ServerProprio()
    {
        qputenv("GIACENZA_SERVER_PROPRIO", dir().toUtf8());
        avvia();
    }
    ServerProprio(const ServerProprio&) = delete;
    ServerProprio& operator=(const ServerProprio&) = delete;
    ~ServerProprio()
    {
        try {
            attrezzo(u"mariadb-privato"_s, {u"ferma"_s, dir()});
        } catch (const std::exception& errore) {
            ADD_FAILURE() << errore.what();
        }
        qunsetenv("GIACENZA_SERVER_PROPRIO");
    }

    void avvia() const { attrezzo(u"mariadb-privato"_s, {u"avvia"_s, dir()}); }
    void uccidi() const { attrezzo(u"mariadb-privato"_s, {u"uccidi"_s, dir()}); }

private:
    QString dir() const { return mCartella.filePath(u"server"_s); }

    QTemporaryDir mCartella{QStringLiteral(GIACENZA_CARTELLA_PROVE "/XXXXXX")};
};

void lavora(const BancaDati& base, const std::vector<Accaduto>& accadimenti)
{
    const int postazioni = postazioniProva();
    const int secondi = secondiProva();
    riempiTurno(base, postazioni);
    Turno turno(base.stringa(), postazioni, secondi);
    turno.lavora(accadimenti);
    const auto voci = turno.voci();
    controllaArchivio(u"archivio"_s, base.accessoAmministratore().stringa, voci);
    raccontaTurno(voci, postazioni, secondi);
}

TEST(Postazioni, SuUnServerCheMuoreERiparte)
{
    const ServerProprio server;
    const BancaDati base("mariadb");
    const double secondi = secondiProva();
    std::vector<Accaduto> accadimenti;
    for (const double quando : {secondi * 0.2, secondi * 0.65}) {
        accadimenti.push_back({quando, u"il server muore"_s, [&] { server.uccidi(); }});
        accadimenti.push_back({quando + secondi * 0.1, u"il server riparte"_s, [&] { server.avvia(); }});
    }
    lavora(base, accadimenti);
}

TEST(Postazioni, SuUnFileSolo)
{
    const BancaDati base("sqlite");
    lavora(base, {});
}

} // namespace
