#include "data/connessione.h"

#include "backends/basi.h"
#include "data/transazione.h"
#include "serversordo.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

using namespace giacenza;
using namespace giacenza::prove;

class Connessioni : public Basi
{};

TEST_P(Connessioni, siApronoEChiudonoPiuVolte)
{
    Connessione connessione;
    EXPECT_FALSE(connessione.aperta());
    EXPECT_EQ(connessione.dialetto(), Dialetto::altro);
    for (int volta = 0; volta < 3; ++volta) {
        connessione.apri(mBase.stringa());
        EXPECT_TRUE(connessione.aperta());
        EXPECT_EQ(connessione.dialetto(), mariadb() ? Dialetto::mariadb : Dialetto::sqlite);
        connessione.chiudi();
        EXPECT_FALSE(connessione.aperta());
    }
}

TEST_P(Connessioni, conteggiano)
{
    creaTabella();
    riempi(4);
    Connessione connessione = mBase.connessione();
    EXPECT_EQ(connessione.esegui(QStringLiteral("update prova set n=1 where id<3;")), 2);
    EXPECT_EQ(connessione.esegui(QStringLiteral("update prova set n=1 where id=99")), 0);
    EXPECT_EQ(connessione.esegui(QStringLiteral("delete from prova")), 4);
}

TEST_P(Connessioni, eseguonoAncheCioCheDaRighe)
{
    creaTabella();
    Connessione connessione = mBase.amministratore();
    const QString istruzione = QStringLiteral("insert into prova (id) values (%1) returning id");
    connessione.esegui(istruzione.arg(1));
    connessione.esegui(istruzione.arg(2));
    Comando comando(connessione, istruzione.arg(QStringLiteral("?")));
    comando.esegui(std::vector<Valore>{QStringLiteral("3")});
    comando.esegui(std::vector<Valore>{QStringLiteral("4")});
    EXPECT_EQ(mBase.leggi(QStringLiteral("select count(*) from prova")), QStringLiteral("4"));
}

TEST_P(Connessioni, versoIlNullaFalliscono)
{
    const QString stringa =
        scegli(QStringLiteral("DRIVER={MariaDB Unicode};SERVER=127.0.0.1;PORT=1;UID=nessuno;DATABASE=nulla"),
               QStringLiteral("DRIVER={SQLite3};Database=/cartella/che/manca/prova.db;StepAPI=1"));
    Connessione connessione;
    const ErroreDatabase errore = erroreDi([&] { connessione.apri(stringa); });
    EXPECT_FALSE(errore.testo().isEmpty());
    EXPECT_TRUE(errore.istruzione().isEmpty());
    EXPECT_EQ(errore.codiceNativo(), mariadb() ? 2002 : 14);
    EXPECT_FALSE(connessione.aperta());
    connessione.apri(mBase.stringa());
    EXPECT_TRUE(connessione.aperta());
}

TEST_P(Connessioni, siApronoAncheConIlNomeDiUnaFonte)
{
    // What the host's string says, as the machine's list of data sources says it.
    QTemporaryDir cartella;
    QFile elenco(cartella.filePath(QStringLiteral("odbc.ini")));
    ASSERT_TRUE(elenco.open(QIODevice::WriteOnly));
    QString voce = mBase.stringa();
    voce.replace(u';', u'\n')
        .remove(u'{')
        .remove(u'}')
        .replace(QStringLiteral("DRIVER"), QStringLiteral("Driver"));
    // A name for each: the driver manager remembers what it read.
    const QString nome = QStringLiteral("Deposito_%1").arg(QString::fromStdString(GetParam()));
    elenco.write(QStringLiteral("[%1]\n%2\n").arg(nome, voce).toUtf8());
    elenco.close();
    qputenv("ODBCINI", elenco.fileName().toUtf8());
    Connessione connessione;
    connessione.apri(QStringLiteral("DSN=") + nome);
    qunsetenv("ODBCINI");
    EXPECT_EQ(connessione.dialetto(), mariadb() ? Dialetto::mariadb : Dialetto::sqlite);
    creaTabella();
    EXPECT_EQ(connessione.esegui(QStringLiteral("insert into prova (id) values (1)")), 1);
    EXPECT_EQ(mBase.leggi(QStringLiteral("select count(*) from prova")), QStringLiteral("1"));
}

TEST_P(Connessioni, conUnaStringaQualsiasiFalliscono)
{
    for (const QString& stringa :
         {QString(), QStringLiteral("questa non è una stringa"), QStringLiteral("DRIVER={Che non c'è}")}) {
        Connessione connessione;
        EXPECT_EQ(erroreDi([&] { connessione.apri(stringa); }).sqlstate(),
                  stringa.startsWith(QStringLiteral("DRIVER")) ? QStringLiteral("01000")
                                                               : QStringLiteral("IM002"));
    }
}

TEST_P(Connessioni, ilLimiteFermaUnIstruzione)
{
    creaTabella();
    riempi(1);
    QString stringa = mBase.stringa();
    // On SQLite what can last is waiting for another's lock: here the string itself would wait ten minutes.
    stringa.replace(QStringLiteral("Timeout=5000"), QStringLiteral("Timeout=600000"));
    Connessione altra = mBase.connessione();
    Transazione scrittura(altra);
    altra.esegui(QStringLiteral("update prova set n=1 where id=1"));
    Connessione connessione;
    connessione.apri(stringa, Limiti{.comando = 1});
    const ErroreDatabase errore =
        erroreDi([&] { connessione.esegui(QStringLiteral("update prova set n=2 where id=1")); });
    EXPECT_EQ(errore.codiceNativo(), mariadb() ? 1969 : 5);
    EXPECT_TRUE(connessione.aperta());
    scrittura.conferma();
    EXPECT_EQ(connessione.esegui(QStringLiteral("update prova set n=2 where id=1")), 1);
}

SU_OGNI_BASE(Connessioni);

class ConnessioniMariadb : public testing::Test
{
protected:
    BancaDati mBase{"mariadb", Contenuto::vuoto};
};

TEST_F(ConnessioniMariadb, conLaParolaSbagliataFalliscono)
{
    QString stringa = mBase.stringa();
    stringa.replace(QRegularExpression(QStringLiteral("PWD=[^;]*")), QStringLiteral("PWD=sbagliata"));
    Connessione connessione;
    const ErroreDatabase errore = erroreDi([&] { connessione.apri(stringa); });
    EXPECT_EQ(errore.sqlstate(), QStringLiteral("28000"));
    EXPECT_EQ(errore.codiceNativo(), 1045);
    EXPECT_TRUE(errore.testo().contains(QStringLiteral("Access denied for user"))) << errore.what();
    EXPECT_FALSE(connessione.aperta());
}

TEST_F(ConnessioniMariadb, versoChiNonRispondeFinisconoAlLimite)
{
    const ServerSordo sordo;
    Connessione connessione;
    const ErroreDatabase errore = erroreDi([&] {
        connessione.apri(QStringLiteral("DRIVER={MariaDB Unicode};SERVER=127.0.0.1;PORT=%1;UID=nessuno")
                             .arg(sordo.porta()),
                         Limiti{.connessione = 1});
    });
    EXPECT_TRUE(errore.sqlstate().startsWith(QStringLiteral("08"))) << errore.what();
    EXPECT_FALSE(connessione.aperta());
}

TEST_F(ConnessioniMariadb, unaLetturaLungaEFermata)
{
    Connessione connessione;
    connessione.apri(mBase.stringa(), Limiti{.comando = 1});
    Recordset recordset;
    const ErroreDatabase errore =
        erroreDi([&] { recordset.apri(connessione, QStringLiteral("select sleep(60)")); });
    EXPECT_EQ(errore.codiceNativo(), 1969);
    recordset.apri(connessione, QStringLiteral("select 5"));
    EXPECT_EQ(recordset.valore(0), QStringLiteral("5"));
}

TEST_F(ConnessioniMariadb, preparanoLaSessione)
{
    Connessione connessione = mBase.connessione();
    Recordset recordset;
    recordset.apri(connessione, QStringLiteral("select @@session.max_statement_time, @@session.sql_mode, "
                                               "@@global.sql_mode, @@character_set_client"));
    EXPECT_EQ(recordset.valore(0), QStringLiteral("30.000000"));
    EXPECT_THAT(recordset.valore(1)->split(u','), testing::Contains(QStringLiteral("NO_BACKSLASH_ESCAPES")));
    for (const QString& modo : recordset.valore(2)->split(u','))
        EXPECT_THAT(recordset.valore(1)->split(u','), testing::Contains(modo));
    EXPECT_EQ(recordset.valore(3), QStringLiteral("utf8mb4"));
}

TEST_F(ConnessioniMariadb, interrotteDalServerSiRiaprono)
{
    const auto interrompi = [&](Connessione& connessione) {
        Recordset recordset;
        recordset.apri(connessione, QStringLiteral("select connection_id()"));
        mBase.esegui(QStringLiteral("kill %1").arg(*recordset.valore(0)));
    };
    mBase.esegui(QStringLiteral("create table t (a integer primary key)"));
    Connessione connessione = mBase.connessione();
    interrompi(connessione);
    const ErroreDatabase errore =
        erroreDi([&] { connessione.esegui(QStringLiteral("insert into t values (1)")); });
    EXPECT_EQ(errore.sqlstate(), QStringLiteral("08S01"));
    EXPECT_EQ(errore.istruzione(), QStringLiteral("insert into t values (1)"));
    EXPECT_FALSE(connessione.aperta());
    EXPECT_EQ(erroreDi([&] { connessione.esegui(QStringLiteral("delete from t")); }).sqlstate(),
              QStringLiteral("08003"));

    connessione.apri(mBase.stringa());
    {
        Transazione transazione(connessione);
        connessione.esegui(QStringLiteral("insert into t values (2)"));
        interrompi(connessione);
        erroreDi([&] { transazione.conferma(); });
    }
    EXPECT_FALSE(connessione.aperta());
    EXPECT_EQ(mBase.leggi(QStringLiteral("select count(*) from t")), QStringLiteral("0"));
    connessione.apri(mBase.stringa());
    EXPECT_EQ(connessione.esegui(QStringLiteral("insert into t values (3)")), 1);
}

class ConnessioniSqlite : public testing::Test
{
protected:
    BancaDati mBase{"sqlite", Contenuto::vuoto};
};

TEST_F(ConnessioniSqlite, aUnFileTenutoDaUnAltroNonAspettanoOltreIlLimite)
{
    // The string itself would wait ten minutes, for opening and for reading.
    QString stringa = mBase.stringa();
    stringa.replace(QStringLiteral("Timeout=5000"), QStringLiteral("Timeout=600000"));
    Connessione altra = mBase.connessione();
    altra.esegui(QStringLiteral("pragma journal_mode=delete"));
    altra.esegui(QStringLiteral("create table t (a integer)"));
    Connessione aperta;
    aperta.apri(stringa, Limiti{.comando = 1});
    altra.esegui(QStringLiteral("begin exclusive"));
    Connessione connessione;
    connessione.apri(stringa, Limiti{.comando = 1});
    for (Connessione* una : {&aperta, &connessione}) {
        Recordset recordset;
        const ErroreDatabase errore =
            erroreDi([&] { recordset.apri(*una, QStringLiteral("select * from t")); });
        EXPECT_EQ(errore.codiceNativo(), 5);
        EXPECT_EQ(errore.istruzione(), QStringLiteral("select * from t"));
    }
    altra.esegui(QStringLiteral("rollback"));
    for (Connessione* una : {&aperta, &connessione}) {
        Recordset recordset;
        recordset.apri(*una, QStringLiteral("select * from t"));
        EXPECT_TRUE(recordset.eof());
    }
}

TEST_F(ConnessioniSqlite, aspettanoUnLucchettoQuantoIlComando)
{
    Connessione connessione = mBase.connessione();
    Recordset recordset;
    recordset.apri(connessione, QStringLiteral("pragma busy_timeout"));
    // Twice, by the driver: together thirty seconds.
    EXPECT_EQ(recordset.valore(0), QStringLiteral("15000"));
}

TEST_F(ConnessioniSqlite, unaConfermaCheNonPuoAvvenireLasciaLaTransazioneDaAnnullare)
{
    Connessione lettrice = mBase.connessione();
    lettrice.esegui(QStringLiteral("pragma journal_mode=delete"));
    mBase.esegui(
        QStringLiteral("create table t (a integer);\ninsert into t values (1);\ninsert into t values (2);"));
    Connessione connessione;
    connessione.apri(mBase.stringa(), Limiti{.comando = 1});
    {
        Recordset lettura;
        lettura.apri(lettrice, QStringLiteral("select * from t"));
        Transazione transazione(connessione);
        connessione.esegui(QStringLiteral("insert into t values (3)"));
        EXPECT_EQ(erroreDi([&] { transazione.conferma(); }).codiceNativo(), 5);
    }
    EXPECT_EQ(mBase.leggi(QStringLiteral("select count(*) from t")), QStringLiteral("2"));
    EXPECT_EQ(connessione.esegui(QStringLiteral("insert into t values (4)")), 1);
    EXPECT_EQ(mBase.leggi(QStringLiteral("select count(*) from t")), QStringLiteral("3"));
}
