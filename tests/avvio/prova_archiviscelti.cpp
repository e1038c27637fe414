#include "host/avvio/assistenza.h"
#include "host/avvio/sceltaarchivio.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

#include <QSettings>
#include <QTemporaryDir>

using namespace deposito;
using namespace Qt::StringLiterals;

namespace {

SceltaArchivio server()
{
    SceltaArchivio scelta;
    scelta.tipo = TipoArchivio::server;
    scelta.server = u"db.deposito"_s;
    scelta.porta = 3307;
    scelta.base = u"depo"_s;
    scelta.utente = u"ufficio"_s;
    return scelta;
}

TEST(SceltaArchivio, DiUnServerSiFaLaStringaConLeParenteseDoveServono)
{
    EXPECT_EQ(
        stringaOdbc(server(), u"parola"_s),
        u"DRIVER={MariaDB Unicode};SERVER=db.deposito;PORT=3307;UID=ufficio;PWD=parola;DATABASE=depo"_s);
    SceltaArchivio cifrata = server();
    cifrata.tls = true;
    EXPECT_EQ(
        stringaOdbc(cifrata, u"a;b}c"_s),
        u"DRIVER={MariaDB Unicode};SERVER=db.deposito;PORT=3307;UID=ufficio;PWD={a;b}}c};DATABASE=depo;FORCETLS=1"_s);
    cifrata.certificato = u"/etc/ssl/ca.pem"_s;
    EXPECT_TRUE(stringaOdbc(cifrata, {}).endsWith(u";FORCETLS=1;SSLCA=/etc/ssl/ca.pem;SSLVERIFY=1"_s));
}

TEST(SceltaArchivio, CioCheMancaSiDice)
{
    QTemporaryDir cartella;
    SceltaArchivio file;
    file.tipo = TipoArchivio::file;
    EXPECT_EQ(mancanza(file), u"Manca il file dell'archivio."_s);
    file.file = cartella.filePath(u"a;b.db"_s);
    EXPECT_EQ(mancanza(file), u"Il nome del file non può contenere \";\" o \"}\": %1"_s.arg(file.file));
    file.file = cartella.filePath(u"nessuno.db"_s);
    EXPECT_EQ(mancanza(file), u"Il file dell'archivio non c'è: %1"_s.arg(file.file));
    EXPECT_EQ(mancanza(SceltaArchivio()), QString()) << "the demonstration is made when it is needed";

    EXPECT_EQ(mancanza(server()), QString());
    const auto senza = [](auto campo, auto valore) {
        SceltaArchivio scelta = server();
        scelta.*campo = valore;
        return mancanza(scelta);
    };
    EXPECT_EQ(senza(&SceltaArchivio::server, u" "_s), u"Manca il nome o l'indirizzo del server."_s);
    EXPECT_EQ(senza(&SceltaArchivio::porta, 0), u"La porta è un numero da 1 a 65535."_s);
    EXPECT_EQ(senza(&SceltaArchivio::base, QString()), u"Manca il nome della base di dati."_s);
    EXPECT_EQ(senza(&SceltaArchivio::utente, QString()), u"Manca il nome dell'utente."_s);
}

TEST(SceltaArchivio, SiRicordaInteraESenzaParola)
{
    QTemporaryDir cartella;
    QSettings impostazioni(cartella.filePath(u"deposito.ini"_s), QSettings::IniFormat);
    EXPECT_EQ(sceltaRicordata(impostazioni), std::nullopt);
    SceltaArchivio scelta = server();
    scelta.tls = true;
    scelta.certificato = u"/etc/ssl/ca.pem"_s;
    scelta.custodia = CustodiaParola::portachiavi;
    ricordaScelta(impostazioni, scelta);
    EXPECT_EQ(sceltaRicordata(impostazioni), scelta);
    SceltaArchivio file;
    file.tipo = TipoArchivio::file;
    file.file = u"/dati/depo.db"_s;
    ricordaScelta(impostazioni, file);
    EXPECT_EQ(sceltaRicordata(impostazioni), file) << "nothing of the server stays";
    EXPECT_FALSE(impostazioni.contains(u"archivio/utente"_s));
}

TEST(Assistenza, LaParolaDOrdineNonEsceMai)
{
    EXPECT_EQ(senzaParola(u"DRIVER={MariaDB Unicode};UID=a;PWD=segreta;DATABASE=b"_s),
              u"DRIVER={MariaDB Unicode};UID=a;PWD=…;DATABASE=b"_s);
    EXPECT_EQ(senzaParola(u"uid=a; Password = {se;gre}}ta};DATABASE=b"_s),
              u"uid=a; Password = …;DATABASE=b"_s);
    EXPECT_EQ(senzaParola(u"pwd=segreta"_s), u"pwd=…"_s);
    EXPECT_EQ(senzaParola(u"PWD={se;gre;DATABASE=b"_s), u"PWD=…"_s) << "nobody knows where it ends";
    EXPECT_EQ(senzaParola(u"PWD={se}gre;DATABASE=b"_s), u"PWD=…;DATABASE=b"_s);
    const QString testo = informazioniAssistenza(u"SERVER=s;PWD=segreta"_s, u"/nessuno/giacenza.ini"_s);
    EXPECT_FALSE(testo.contains(u"segreta"_s)) << testo.toStdString();
    for (const char16_t* atteso :
         {u"Archivio: SERVER=s;PWD=…", u"Impostazioni: /nessuno/giacenza.ini (non c'è)", u"MariaDB Unicode",
          u"SQLite3"})
        EXPECT_TRUE(testo.contains(QString::fromUtf16(atteso))) << testo.toStdString();
}

} // namespace
