#include "operazioni.h"

#include "data/archivio.h"
#include "database/tentativi.h"
#include "database/transazione.h"

#include <atomic>
#include <chrono>
#include <thread>

using namespace giacenza;
using namespace giacenza::prove;

namespace {

/// What goes wrong with the register on a server: no save is refused for it.
class GuastiMariadb : public ConRegistro
{
protected:
    /// The save was done; nothing of it stands in the register.
    void salvaSenzaRegistro()
    {
        faiTutto(mBase);
        EXPECT_EQ(mBase.leggi(u"select LERFGI from letve00f where lenrlv='4711'"_s), u"42"_s);
        EXPECT_EQ(mBase.leggi(u"select GINRAV from giace00f where GINRGI='42'"_s), u"2"_s);
    }
    int guasto()
    {
        try {
            registra(mBase);
        } catch (const ErroreDatabase& errore) {
            return errore.codiceNativo();
        }
        return 0;
    }
    /// Until a session of this base waits for a lock.
    void attendiChiAspetta() const
    {
        while (
            mBase.leggi(
                u"select count(*) from information_schema.processlist where db=database() and "
                "(state like 'Waiting%' or (command<>'Sleep' and time_ms>300 and id<>connection_id()))"_s) ==
            u"0"_s)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, GuastiMariadb, testing::Values("mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(GuastiMariadb, LaTabellaNonCEPiu)
{
    mBase.esegui(u"drop table registro"_s);
    salvaSenzaRegistro();
}

TEST_P(GuastiMariadb, LaTabellaEUnAltra)
{
    mBase.esegui(u"drop table registro;\ncreate table registro (x integer not null)"_s);
    salvaSenzaRegistro();
}

TEST_P(GuastiMariadb, IlTestoNonCiSta)
{
    mBase.esegui(u"alter table registro modify testo varchar(3), modify fatto varchar(3)"_s);
    salvaSenzaRegistro();
    EXPECT_EQ(mBase.leggi(u"select count(*) from registro where fatto='registrata'"_s), u"0"_s);
}

TEST_P(GuastiMariadb, IDirittiDiScriverviSonoTolti)
{
    mBase.esegui(u"revoke insert on registro from registro_giacenza"_s);
    salvaSenzaRegistro();
    preparaRegistro(mBase.accessoAmministratore());
    mBase.esegui(u"update giace00f set GINRFA='1' where GINRGI='42'"_s);
    EXPECT_EQ(registrati(mBase).last()[6], u"fatturata"_s);
}

TEST_P(GuastiMariadb, UnaTabellaChiusaAChiaveSiAspetta)
{
    std::atomic<bool> chiusa = false;
    std::thread custode([&] {
        Connessione amministratore = mBase.amministratore();
        amministratore.esegui(u"lock tables registro write"_s);
        chiusa = true;
        amministratore.esegui(u"select sleep(1)"_s);
        amministratore.esegui(u"unlock tables"_s);
    });
    while (!chiusa)
        std::this_thread::yield();
    EXPECT_EQ(guasto(), 0);
    custode.join();
    EXPECT_EQ(registrati(mBase).first()[6], u"registrata"_s);
}

TEST_P(GuastiMariadb, UnaRigaBloccataSiAspetta)
{
    mBase.esegui(u"update giace00f set GINRAV='3' where GINRGI='40'"_s);
    std::atomic<bool> bloccate = false;
    std::thread lettore([&] {
        Connessione amministratore = mBase.amministratore();
        Transazione transazione(amministratore);
        Recordset righe;
        righe.apri(amministratore, u"select * from registro for update"_s);
        bloccate = true;
        amministratore.esegui(u"select sleep(1)"_s);
    });
    while (!bloccate)
        std::this_thread::yield();
    EXPECT_EQ(guasto(), 0);
    lettore.join();
    EXPECT_EQ(mBase.leggi(u"select count(*) from registro where fatto='registrata'"_s), u"1"_s);
}

/// A deadlock rolls everything back, so no handler may hide it: it comes out as one, and is tried again.
TEST_P(GuastiMariadb, UnoStalloNelRegistroEUnoStallo)
{
    mBase.esegui(u"update giace00f set GINRAV='3' where GINRGI='40'"_s);
    mBase.esegui(
        u"insert into giace00f (GIFILI,GINRLV,GIANLV,GINRGI,GIANGI) values ('MI','4712',2026,'50',2026)"_s);
    Connessione postazione = mBase.connessione();
    Transazione mia(postazione);
    postazione.esegui(u"update giace00f set GIGGSO=9 where GINRGI='40'"_s);
    std::atomic<bool> bloccate = false;
    std::thread altro([&] {
        Connessione amministratore = mBase.amministratore();
        Transazione sua(amministratore);
        for (int i = 0; i < 50; ++i) // the one who has written less is ended
            amministratore.esegui(u"insert into porto values (%1, 'x')"_s.arg(100 + i));
        Recordset righe;
        righe.apri(amministratore, u"select * from registro for update"_s);
        bloccate = true;
        amministratore.esegui(u"update giace00f set GIGGSO=8 where GINRGI='40'"_s);
        sua.conferma();
    });
    while (!bloccate)
        std::this_thread::yield();
    attendiChiAspetta();
    try {
        postazione.esegui(u"update giace00f set GINRAV='1' where GINRGI='50'"_s);
        ADD_FAILURE() << "Lo stallo è stato nascosto.";
    } catch (const ErroreDatabase& errore) {
        EXPECT_TRUE(perConcorrenza(errore)) << errore.what();
    }
    altro.join();
    EXPECT_EQ(mBase.righe(u"select GIGGSO, GINRAV from giace00f order by GINRGI"_s),
              (QList<QStringList>{{u"8"_s, u"3"_s}, {u"NULL"_s, u"NULL"_s}}));
}

TEST_P(GuastiMariadb, ChiHaPreparatoIlRegistroPuoAndarsene)
{
    const QString nome = *mBase.leggi(u"select database()"_s);
    const QString conto = u"'%1_b'@'127.0.0.1'"_s.arg(nome);
    mBase.esegui(u"create user %1 identified by 'b';\ngrant all on *.* to %1 with grant option"_s.arg(conto));
    mBase.esegui(u"drop trigger registro_giace_nuova"_s);
    QString stringa = mBase.stringa();
    preparaRegistro(
        accessoTracciato(stringa.replace(u"UID=%1;PWD=%1"_s.arg(nome), u"UID=%1_b;PWD=b"_s.arg(nome))));
    mBase.esegui(u"drop user "_s + conto);
    registra(mBase);
    EXPECT_EQ(registrati(mBase).first()[6], u"registrata"_s);
}

/// The one case that a handler cannot help against: the definer itself is gone. Preparing puts it back.
TEST_P(GuastiMariadb, SenzaIlDefinitoreSiRifiutaFinoAllaPreparazione)
{
    constexpr int definitoreIgnoto = 1449;
    const QString nome = *mBase.leggi(u"select database()"_s);
    const QString conto = u"'%1_c'@'127.0.0.1'"_s.arg(nome);
    mBase.esegui(u"create user %1;\ngrant all on *.* to %1"_s.arg(conto));
    Connessione amministratore = mBase.amministratore();
    for (const QString& istruzione : istruzioniRegistro(Dialetto::mariadb, 1, conto))
        amministratore.esegui(istruzione);
    mBase.esegui(u"drop user "_s + conto);
    EXPECT_EQ(guasto(), definitoreIgnoto);
    EXPECT_EQ(mBase.leggi(u"select count(*) from giace00f where GINRGI='42'"_s), u"0"_s);
    preparaRegistro(mBase.accessoAmministratore());
    EXPECT_EQ(guasto(), 0);
    EXPECT_EQ(registrati(mBase).first()[6], u"registrata"_s);
}

} // namespace
