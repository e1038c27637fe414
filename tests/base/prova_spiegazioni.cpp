#include "base/spiegazioni.h"

#include "support/stampa.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;

using namespace giacenza;

namespace {

QString mariadb(int codice, const QString& sqlstate = u"HY000"_s)
{
    return spiega(ErroreDatabase(sqlstate, codice, u"words of the driver"_s));
}

QString sqlite(const QString& testo)
{
    return spiega(ErroreDatabase(u"HY000"_s, 1, testo));
}

TEST(Spiegazioni, OgniCodiceConosciutoHaLaSuaFrase)
{
    for (const int codice : {2002, 2003})
        EXPECT_EQ(mariadb(codice), u"Il server dell'archivio non risponde."_s);
    EXPECT_EQ(mariadb(2005), u"Il server dell'archivio non si trova in rete."_s);
    for (const int codice : {2006, 2013})
        EXPECT_EQ(mariadb(codice), u"La connessione con l'archivio è caduta."_s);
    EXPECT_EQ(mariadb(1045), u"Il server ha rifiutato il nome o la parola d'ordine."_s);
    EXPECT_EQ(mariadb(1049), u"Sul server non c'è la base di dati indicata."_s);
    EXPECT_EQ(mariadb(1044), u"Il server non apre a questo utente la base di dati indicata."_s);
    EXPECT_EQ(mariadb(2026), u"La connessione cifrata con il server non è riuscita."_s);
    EXPECT_EQ(mariadb(1146), u"Nell'archivio manca una tabella."_s);
    for (const int codice : {1142, 1143})
        EXPECT_EQ(mariadb(codice),
                  u"Questo utente non ha il permesso di farlo: chiedere a chi amministra l'archivio."_s);
    for (const int codice : {1021, 1114})
        EXPECT_EQ(mariadb(codice), u"Il disco dell'archivio è pieno."_s);
    for (const int codice : {1290, 1836})
        EXPECT_EQ(mariadb(codice), u"L'archivio è in sola lettura: chiedere a chi lo amministra."_s);
    EXPECT_EQ(mariadb(1969, u"70100"_s), u"L'archivio non ha risposto in tempo."_s);
    EXPECT_EQ(mariadb(1040),
              u"Il server dell'archivio ha troppe postazioni collegate: riprovare tra poco."_s);
    EXPECT_EQ(mariadb(1205), u"Un'altra postazione tiene occupata la registrazione: riprovare tra poco."_s);
    EXPECT_EQ(mariadb(1213), u"Due postazioni si sono ostacolate: riprovare."_s);
    EXPECT_EQ(mariadb(1062), u"C'è già una registrazione con la stessa chiave."_s);
    EXPECT_EQ(mariadb(1, u"08S01"_s), u"La connessione con l'archivio è caduta."_s);
    EXPECT_EQ(mariadb(1, u"HYT00"_s), u"L'archivio non ha risposto in tempo."_s);
    EXPECT_EQ(mariadb(0, u"08001"_s), u"L'archivio non si raggiunge."_s);
    EXPECT_EQ(mariadb(0, u"42S02"_s), u"Nell'archivio manca una tabella."_s);
    for (const QString& stato : {u"01000"_s, u"IM002"_s, u"IM003"_s})
        EXPECT_EQ(mariadb(0, stato), u"Manca il driver ODBC dell'archivio."_s);
    EXPECT_EQ(mariadb(9999), u"L'archivio ha rifiutato l'operazione."_s);
}

TEST(Spiegazioni, SqliteSiCapisceDalTesto)
{
    EXPECT_EQ(sqlite(u"[SQLite]database is locked (5)"_s),
              u"Un'altra postazione tiene occupato l'archivio: riprovare tra poco."_s);
    EXPECT_EQ(sqlite(u"database or disk is full"_s), u"Il disco dell'archivio è pieno."_s);
    EXPECT_EQ(sqlite(u"attempt to write a readonly database"_s),
              u"L'archivio è in sola lettura: chiedere a chi lo amministra."_s);
    EXPECT_EQ(sqlite(u"[SQLite]no such table: porto (1)"_s), u"Nell'archivio manca una tabella."_s);
    EXPECT_EQ(sqlite(u"[SQLite]disk I/O error (10)"_s),
              u"Il file dell'archivio non si legge o non si scrive."_s);
    EXPECT_EQ(sqlite(u"[SQLite]interrupted (9)"_s), u"L'archivio non ha risposto in tempo."_s);
    EXPECT_EQ(sqlite(u"file is not a database"_s), u"Il file indicato non è un archivio."_s);
}

TEST(Spiegazioni, SoloUnaRispostaPersaScrivendoLasciaInDubbio)
{
    const auto perso = [](const QString& stato, int codice, const QString& istruzione) {
        return forseScritto(ErroreDatabase(stato, codice, u"lost"_s, istruzione));
    };
    EXPECT_TRUE(perso(u"HY000"_s, 2013, u"UPDATE giace00f SET GINRAV='1'"_s));
    EXPECT_TRUE(perso(u"08S01"_s, 0, u"update giace00f set GIGGSO=1"_s));
    EXPECT_FALSE(perso(u"08S01"_s, 2006, u"update giace00f set GIGGSO=1"_s)) << "it was not sent";
    EXPECT_FALSE(perso(u"HY000"_s, 2013, u"select GIDTBF from giace00f"_s));
    EXPECT_FALSE(perso(u"HY000"_s, 1205, u"update giace00f set GIGGSO=1"_s));
    EXPECT_FALSE(forseScritto(Errore(u"Manca la data."_s)));
}

TEST(Spiegazioni, CioCheNonEDelDatabaseParlaDaSe)
{
    EXPECT_EQ(spiega(static_cast<const Errore&>(Errore(u"Manca la data."_s))), u"Manca la data."_s);
    EXPECT_EQ(spiega(static_cast<const Errore&>(ErroreDatabase(u"HY000"_s, 2006, u"gone"_s))),
              u"La connessione con l'archivio è caduta."_s);
}

} // namespace
