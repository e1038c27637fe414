#include "host/avvio/spiegazioni.h"

#include "support/stampa.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using deposito::nomeArchivio;
using deposito::spiega;
using giacenza::ErroreDatabase;

TEST(Spiegazioni, dicono_la_causa_e_riportano_la_risposta_del_database)
{
    EXPECT_EQ(
        spiega(ErroreDatabase(u"08001"_s, 2002, u"Can't connect"_s)),
        u"La schermata non è stata aperta. Il server dell'archivio non risponde. Controllare che il server "
        u"sia "
        u"acceso, il nome, la porta e la rete.\n\nRisposta dell'archivio: Can't connect (08001, 2002)"_s);
    EXPECT_EQ(
        spiega(ErroreDatabase(u"28000"_s, 1045, u"Access denied"_s)),
        u"La schermata non è stata aperta. Il server ha rifiutato il nome o la parola d'ordine. Controllare "
        u"l'utente e la parola d'ordine, e che il server li accetti da questo computer.\n\n"
        u"Risposta dell'archivio: Access denied (28000, 1045)"_s);
    EXPECT_EQ(spiega(ErroreDatabase(u"IM002"_s, 0, u"Data source name not found"_s)),
              u"La schermata non è stata aperta. Manca il driver ODBC dell'archivio. Installare odbc-mariadb "
              u"per un "
              u"server MariaDB, libsqliteodbc per un file.\n\n"
              u"Risposta dell'archivio: Data source name not found (IM002, 0)"_s);
    EXPECT_EQ(spiega(ErroreDatabase(u"42S02"_s, 1146, u"Table 'x.porto' doesn't exist"_s)),
              u"La schermata non è stata aperta. Nell'archivio manca una tabella. Le tabelle si creano con "
              u"schema/mariadb.sql o "
              u"schema/sqlite.sql.\n\n"
              u"Risposta dell'archivio: Table 'x.porto' doesn't exist (42S02, 1146)"_s);
}

TEST(Spiegazioni, il_segno_di_percento_di_una_risposta_resta_com_e)
{
    EXPECT_TRUE(
        spiega(ErroreDatabase(u"HY000"_s, 1, u"near \"%3\": %4"_s)).endsWith(u"near \"%3\": %4 (HY000, 1)"));
}

TEST(Spiegazioni, il_nome_dell_archivio_non_mostra_altro)
{
    EXPECT_EQ(nomeArchivio(u"DRIVER={SQLite3};Database=/dati/di prova/giacenza.db;StepAPI=1"_s),
              u"giacenza.db"_s);
    EXPECT_EQ(
        nomeArchivio(u"DRIVER={MariaDB Unicode};SERVER=db1;PORT=3306;UID=u;PWD=segreta;DATABASE=depo"_s),
        u"depo su db1"_s);
    EXPECT_EQ(nomeArchivio(u"server={db 1};database={depo}"_s), u"depo su db 1"_s);
    EXPECT_EQ(nomeArchivio(u"DSN=Deposito;UID=u;PWD=segreta"_s), u"Deposito"_s);
    EXPECT_EQ(nomeArchivio(u"UID=u;PWD=DATABASE"_s), QString());
    EXPECT_EQ(nomeArchivio(QString()), QString());
}
