#include "database/connessione.h"

#include "data/archivio.h"
#include "database/basi.h"
#include "database/transazione.h"
#include "serversordo.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

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
    EXPECT_EQ(connessione.esegui(u"update prova set n=1 where id<3;"_s), 2);
    EXPECT_EQ(connessione.esegui(u"update prova set n=1 where id=99"_s), 0);
    EXPECT_EQ(connessione.esegui(u"delete from prova"_s), 4);
}

TEST_P(Connessioni, eseguonoAncheCioCheDaRighe)
{
    creaTabella();
    Connessione connessione = mBase.amministratore();
    // In capitals: the MariaDB driver looks for its words by the locale, and in the Turkish one an i is no I.
    const QString istruzione = u"INSERT INTO prova (id) VALUES (%1) RETURNING id"_s;
    connessione.esegui(istruzione.arg(1));
    connessione.esegui(istruzione.arg(2));
    Comando comando(connessione, istruzione.arg(u"?"_s));
    comando.esegui(std::vector<Valore>{u"3"_s});
    comando.esegui(std::vector<Valore>{u"4"_s});
    EXPECT_EQ(mBase.leggi(u"select count(*) from prova"_s), u"4"_s);
}

TEST_P(Connessioni, versoIlNullaFalliscono)
{
    const QString stringa =
        scegli(u"DRIVER={MariaDB Unicode};SERVER=127.0.0.1;PORT=1;UID=nessuno;DATABASE=nulla"_s,
               u"DRIVER={SQLite3};Database=/cartella/che/manca/prova.db;StepAPI=1"_s);
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
    QFile elenco(cartella.filePath(u"odbc.ini"_s));
    ASSERT_TRUE(elenco.open(QIODevice::WriteOnly));
    QString voce = mBase.stringa();
    voce.replace(u';', u'\n').remove(u'{').remove(u'}').replace(u"DRIVER"_s, u"Driver"_s);
    // A name for each: the driver manager remembers what it read.
    const QString nome = u"Deposito_%1"_s.arg(QString::fromStdString(GetParam()));
    elenco.write(u"[%1]\n%2\n"_s.arg(nome, voce).toUtf8());
    elenco.close();
    qputenv("ODBCINI", elenco.fileName().toUtf8());
    Connessione connessione;
    connessione.apri(u"DSN="_s + nome);
    qunsetenv("ODBCINI");
    EXPECT_EQ(connessione.dialetto(), mariadb() ? Dialetto::mariadb : Dialetto::sqlite);
    creaTabella();
    EXPECT_EQ(connessione.esegui(u"insert into prova (id) values (1)"_s), 1);
    EXPECT_EQ(mBase.leggi(u"select count(*) from prova"_s), u"1"_s);
}

TEST_P(Connessioni, conUnaStringaQualsiasiFalliscono)
{
    for (const QString& stringa : {QString(), u"questa non è una stringa"_s, u"DRIVER={Che non c'è}"_s}) {
        Connessione connessione;
        EXPECT_EQ(erroreDi([&] { connessione.apri(stringa); }).sqlstate(),
                  stringa.startsWith(u"DRIVER"_s) ? u"01000"_s : u"IM002"_s);
    }
}

TEST_P(Connessioni, ilLimiteFermaUnIstruzione)
{
    creaTabella();
    riempi(1);
    QString stringa = mBase.stringa();
    // On SQLite what can last is waiting for another's lock: here the string itself would wait ten minutes.
    stringa.replace(u"Timeout=5000"_s, u"Timeout=600000"_s);
    Connessione altra = mBase.connessione();
    Transazione scrittura(altra);
    altra.esegui(u"update prova set n=1 where id=1"_s);
    Connessione connessione;
    connessione.apri(stringa, Limiti{.comando = 1});
    const ErroreDatabase errore = erroreDi([&] { connessione.esegui(u"update prova set n=2 where id=1"_s); });
    EXPECT_EQ(errore.codiceNativo(), mariadb() ? 1969 : 5);
    EXPECT_TRUE(connessione.aperta());
    scrittura.conferma();
    EXPECT_EQ(connessione.esegui(u"update prova set n=2 where id=1"_s), 1);
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
    stringa.replace(QRegularExpression(u"PWD=[^;]*"_s), u"PWD=sbagliata"_s);
    Connessione connessione;
    const ErroreDatabase errore = erroreDi([&] { connessione.apri(stringa); });
    EXPECT_EQ(errore.sqlstate(), u"28000"_s);
    EXPECT_EQ(errore.codiceNativo(), 1045);
    EXPECT_TRUE(errore.testo().contains(u"Access denied for user"_s)) << errore.what();
    EXPECT_FALSE(connessione.aperta());
}

TEST_F(ConnessioniMariadb, versoChiNonRispondeFinisconoAlLimite)
{
    const ServerSordo sordo;
    Connessione connessione;
    const ErroreDatabase errore = erroreDi([&] {
        connessione.apri(
            u"DRIVER={MariaDB Unicode};SERVER=127.0.0.1;PORT=%1;UID=nessuno"_s.arg(sordo.porta()),
            Limiti{.connessione = 1});
    });
    EXPECT_TRUE(errore.sqlstate().startsWith(u"08"_s)) << errore.what();
    EXPECT_FALSE(connessione.aperta());
}

TEST_F(ConnessioniMariadb, unaLetturaLungaEFermata)
{
    Connessione connessione;
    connessione.apri(mBase.stringa(), Limiti{.comando = 1});
    Recordset recordset;
    const ErroreDatabase errore = erroreDi([&] { recordset.apri(connessione, u"select sleep(60)"_s); });
    EXPECT_EQ(errore.codiceNativo(), 1969);
    recordset.apri(connessione, u"select 5"_s);
    EXPECT_EQ(recordset.valore(0), u"5"_s);
}

/// Only in a group is it something else, and tried again: here somebody holds a row, and is told of.
TEST_F(ConnessioniMariadb, diUnBloccoTenutoTroppoDiconoUnaVolta)
{
    mBase.esegui(u"create table t (a integer primary key, b integer)"_s);
    mBase.esegui(u"insert into t values (1, 0)"_s);
    Connessione altra = mBase.connessione();
    const Transazione tiene(altra);
    altra.esegui(u"update t set b=1"_s);
    Connessione connessione = mBase.connessione();
    connessione.esegui(u"set session innodb_lock_wait_timeout=1"_s);
    int volte = 0;
    const Traccia prima = impostaTraccia(
        [&](EventoDati evento, const QString&) { volte += evento == EventoDati::istruzione ? 1 : 0; });
    const ErroreDatabase errore = erroreDi([&] { connessione.esegui(u"update t set b=2"_s); });
    impostaTraccia(prima);
    EXPECT_EQ(errore.codiceNativo(), 1205);
    EXPECT_EQ(errore.sqlstate(), u"HY000"_s);
    EXPECT_EQ(volte, 1);
}

TEST_F(ConnessioniMariadb, preparanoLaSessione)
{
    Connessione connessione = mBase.connessione();
    Recordset recordset;
    recordset.apri(connessione, u"select @@session.max_statement_time, @@session.sql_mode, "
                                "@@global.sql_mode, @@character_set_client, @@session.wsrep_sync_wait"_s);
    EXPECT_EQ(recordset.valore(0), u"30.000000"_s);
    EXPECT_THAT(recordset.valore(1)->split(u','), testing::Contains(u"NO_BACKSLASH_ESCAPES"_s));
    for (const QString& modo : recordset.valore(2)->split(u','))
        EXPECT_THAT(recordset.valore(1)->split(u','), testing::Contains(modo));
    EXPECT_EQ(recordset.valore(3), u"utf8mb4"_s);
    EXPECT_EQ(recordset.valore(4), u"0"_s); // a server on its own has nobody to wait for
}

TEST_F(ConnessioniMariadb, interrotteDalServerSiRiaprono)
{
    const auto interrompi = [&](Connessione& connessione) {
        Recordset recordset;
        recordset.apri(connessione, u"select connection_id()"_s);
        mBase.esegui(u"kill %1"_s.arg(*recordset.valore(0)));
    };
    mBase.esegui(u"create table t (a integer primary key)"_s);
    Connessione connessione = mBase.connessione();
    interrompi(connessione);
    const ErroreDatabase errore = erroreDi([&] { connessione.esegui(u"insert into t values (1)"_s); });
    EXPECT_EQ(errore.sqlstate(), u"08S01"_s);
    EXPECT_EQ(errore.istruzione(), u"insert into t values (1)"_s);
    EXPECT_FALSE(connessione.aperta());
    EXPECT_EQ(erroreDi([&] { connessione.esegui(u"delete from t"_s); }).sqlstate(), u"08003"_s);

    connessione.apri(mBase.stringa());
    {
        Transazione transazione(connessione);
        connessione.esegui(u"insert into t values (2)"_s);
        interrompi(connessione);
        erroreDi([&] { transazione.conferma(); });
    }
    EXPECT_FALSE(connessione.aperta());
    EXPECT_EQ(mBase.leggi(u"select count(*) from t"_s), u"0"_s);
    connessione.apri(mBase.stringa());
    EXPECT_EQ(connessione.esegui(u"insert into t values (3)"_s), 1);
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
    stringa.replace(u"Timeout=5000"_s, u"Timeout=600000"_s);
    Connessione altra = mBase.connessione();
    altra.esegui(u"pragma journal_mode=delete"_s);
    altra.esegui(u"create table t (a integer)"_s);
    Connessione aperta;
    aperta.apri(stringa, Limiti{.comando = 1});
    altra.esegui(u"begin exclusive"_s);
    Connessione connessione;
    connessione.apri(stringa, Limiti{.comando = 1});
    for (Connessione* una : {&aperta, &connessione}) {
        Recordset recordset;
        const ErroreDatabase errore = erroreDi([&] { recordset.apri(*una, u"select * from t"_s); });
        EXPECT_EQ(errore.codiceNativo(), 5);
        EXPECT_EQ(errore.istruzione(), u"select * from t"_s);
    }
    altra.esegui(u"rollback"_s);
    for (Connessione* una : {&aperta, &connessione}) {
        Recordset recordset;
        recordset.apri(*una, u"select * from t"_s);
        EXPECT_TRUE(recordset.eof());
    }
}

TEST_F(ConnessioniSqlite, aspettanoUnLucchettoQuantoIlComando)
{
    Connessione connessione = mBase.connessione();
    Recordset recordset;
    recordset.apri(connessione, u"pragma busy_timeout"_s);
    // Twice, by the driver: together thirty seconds.
    EXPECT_EQ(recordset.valore(0), u"15000"_s);
}

TEST_F(ConnessioniSqlite, unaConfermaCheNonPuoAvvenireLasciaLaTransazioneDaAnnullare)
{
    Connessione lettrice = mBase.connessione();
    lettrice.esegui(u"pragma journal_mode=delete"_s);
    mBase.esegui(u"create table t (a integer);\ninsert into t values (1);\ninsert into t values (2);"_s);
    Connessione connessione;
    connessione.apri(mBase.stringa(), Limiti{.comando = 1});
    {
        Recordset lettura;
        lettura.apri(lettrice, u"select * from t"_s);
        Transazione transazione(connessione);
        connessione.esegui(u"insert into t values (3)"_s);
        EXPECT_EQ(erroreDi([&] { transazione.conferma(); }).codiceNativo(), 5);
    }
    EXPECT_EQ(mBase.leggi(u"select count(*) from t"_s), u"2"_s);
    EXPECT_EQ(connessione.esegui(u"insert into t values (4)"_s), 1);
    EXPECT_EQ(mBase.leggi(u"select count(*) from t"_s), u"3"_s);
}
