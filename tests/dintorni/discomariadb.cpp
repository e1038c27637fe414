// A MariaDB server whose own disk is full.

#include "dintorni/discopiccolo.h"
#include "dintorni/serverproprio.h"
#include "registration/registrazionediprova.h"

#include <QPlainTextEdit>

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;

namespace {

constexpr qint64 pagineDelServer = 50'000;

struct ServerSulDisco
{
    DiscoPiccolo mDisco{pagineDelServer};
    ServerProprio mServer{mDisco.percorso() + u"/server"_s};
};

class DiscoMariadb : protected ServerSulDisco, public RegistrazioneDiProva
{
protected:
    /// Rows until the tables have no room left, large ones first.
    void stipa()
    {
        Connessione connessione = mBase.amministratore();
        connessione.esegui(u"set session max_statement_time=0"_s);
        int numero = 900'000;
        for (const int lunga : {240, 20, 1})
            try {
                for (const int fine = numero + 100'000; numero < fine; ++numero)
                    connessione.esegui(
                        u"insert into giace00f (GIFILI,GINRLV,GIANLV,GICODI,GINRGI,GIANGI,GIDES1) values "
                        "('MI','%1',2026,1001,'%1',2026,repeat('x',%2))"_s.arg(numero)
                            .arg(lunga));
                FAIL() << "the disk did not fill";
            } catch (const ErroreDatabase& errore) {
                ASSERT_EQ(errore.codiceNativo(), 1114) << errore.what();
            }
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, DiscoMariadb, testing::Values("mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(DiscoMariadb, PienoMentreSiSalva)
{
    consegna(u"4711"_s);
    // Longer than what a page that is full keeps free.
    qobject_cast<QPlainTextEdit*>(c("txtDescGia"))->setPlainText(QString(3'000, u'y'));
    mDisco.riempi();
    stipa();
    clicca("cmdSalva");
    EXPECT_THAT(mMessaggi.prendi(), ElementsAre(Messaggio{u"Impossibile aggiungere la nuova giacenza."_s,
                                                          Stile::critico, titoloApplicazione()}));
    EXPECT_EQ(mostrato("lblStato"), u"Il disco dell'archivio è pieno."_s);
    const QString legate =
        u"select count(*) from letve00f join giace00f on ginrlv=lenrlv and gianlv=leanlv where "
        "lenrlv='4711'"_s;
    EXPECT_EQ(mBase.leggi(legate), u"0"_s);
    EXPECT_EQ(mBase.leggi(u"select LERFGI from letve00f where lenrlv='4711'"_s), std::nullopt);
    mDisco.libera();
    clicca("cmdSalva");
    EXPECT_EQ(mMessaggi.testi(), QStringList{u"Giacenza aggiunta in database."_s});
    EXPECT_EQ(mBase.leggi(legate), u"1"_s);
    EXPECT_EQ(mBase.leggi(u"select GINRAV from giace00f where GINRLV='4711'"_s), u"1"_s);
}

} // namespace
