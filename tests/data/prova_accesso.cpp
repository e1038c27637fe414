#include "base/impostazioni.h"
#include "data/archivio.h"
#include "support/bancadati.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

#include <thread>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;

namespace {

/// The way to the host's archive, and who traces it.
class AccessoAllArchivio : public testing::TestWithParam<std::string>
{
protected:
    AccessoAllArchivio() { impostazioni().percorsoDatabase = mBase.stringa(); }
    ~AccessoAllArchivio() override
    {
        impostaTraccia({});
        impostazioni() = {};
    }

    Traccia elenca()
    {
        return [this](EventoDati evento, const QString& testo) {
            if (evento == EventoDati::istruzione)
                mIstruzioni += testo;
        };
    }

    BancaDati mBase{GetParam(), Contenuto::vuoto};
    QStringList mIstruzioni;
};

INSTANTIATE_TEST_SUITE_P(Basi, AccessoAllArchivio, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(AccessoAllArchivio, ELaStringaDellHost)
{
    EXPECT_EQ(accessoHost().stringa, mBase.stringa());
    impostazioni().percorsoDatabase = u"DSN=altra"_s;
    EXPECT_EQ(accessoHost().stringa, u"DSN=altra"_s);
    EXPECT_EQ(accessoTracciato(u"DSN=terza"_s).stringa, u"DSN=terza"_s);
}

TEST_P(AccessoAllArchivio, IlFileCheMancaSiTrovaComunqueSiaScrittaLaStringa)
{
    for (const QString& stringa : {u"DRIVER={SQLite3};Database=/manca/a b.db;Timeout=1"_s,
                                   u"driver=SQLite3; DATABASE = /manca/a b.db "_s,
                                   u"Database={/manca/a b.db};Driver={SQLite3 ODBC; =Driver}"_s,
                                   u"X=;Driver=SQLITE;Database=/manca/a b.db;"_s}) {
        impostazioni().percorsoDatabase = stringa;
        try {
            accessoHost();
            ADD_FAILURE() << stringa.toStdString();
        } catch (const ErroreDatabase& errore) {
            EXPECT_EQ(errore.testo(), u"Il file dell'archivio non c'è: /manca/a b.db"_s);
            EXPECT_EQ(errore.sqlstate(), u"08001"_s);
            EXPECT_EQ(errore.codiceNativo(), 0);
        }
    }
    for (const QString& stringa :
         {u"DRIVER={MariaDB};DATABASE=/manca/a.db"_s, u"Driver=SQLite3;Database=:memory:"_s,
          u"Driver=SQLite3;MioDatabase=/manca/a.db"_s, u"Driver=SQLite3;Database={"_s, u"SQLite3"_s,
          u"Driver=SQLite3;Database={:memory:}"_s}) {
        impostazioni().percorsoDatabase = stringa;
        if (stringa.endsWith(u'{'))
            EXPECT_THROW(accessoHost(), ErroreDatabase) << "a brace that is not closed is a name";
        else
            EXPECT_EQ(accessoHost().stringa, stringa);
    }
}

TEST_P(AccessoAllArchivio, LeTabelleCheMancanoSiDiconoTutteSenzaCodiceDelServer)
{
    for (const char16_t* tabella : {u"LETVE00F", u"giace00f", u"clien", u"filiali", u"forni", u"codicizona",
                                    u"tabfatturazione", u"ekelvorqzt_tabge00f"})
        mBase.esegui(u"create table %1 (una int);"_s.arg(QString::fromUtf16(tabella)));
    Connessione connessione = mBase.connessione();
    try {
        verificaTabelle(connessione);
        ADD_FAILURE() << "one is missing";
    } catch (const ErroreDatabase& errore) {
        EXPECT_EQ(errore.testo(), u"Nell'archivio mancano, o questo utente non le vede, le tabelle: porto"_s);
        EXPECT_EQ(errore.sqlstate(), u"42S02"_s);
        EXPECT_EQ(errore.codiceNativo(), 0);
    }
    mBase.esegui(u"create table porto (una int);"_s);
    verificaTabelle(connessione);
}

TEST_P(AccessoAllArchivio, LaTracciaValeAncheSeArrivaAConnessioneAperta)
{
    Connessione connessione;
    connessione.apri(accessoHost());
    connessione.esegui(u"select 1"_s);
    impostaTraccia(elenca());
    connessione.esegui(u"select 2"_s);
    impostaTraccia({});
    connessione.esegui(u"select 3"_s);
    EXPECT_EQ(mIstruzioni, QStringList{u"select 2"_s});
}

TEST_P(AccessoAllArchivio, ChiTracciaRiceveQuelloDiPrima)
{
    impostaTraccia(elenca());
    const Traccia prima = impostaTraccia({});
    mBase.leggi(u"select 1"_s);
    EXPECT_EQ(mIstruzioni, QStringList());
    impostaTraccia(prima);
    mBase.leggi(u"select 2"_s);
    EXPECT_EQ(mIstruzioni, QStringList{u"select 2"_s});
}

TEST_P(AccessoAllArchivio, ChiTracciaPuoTogliersiMentreTraccia)
{
    Connessione connessione = mBase.connessione();
    const Traccia elenco = elenca();
    impostaTraccia([&elenco](EventoDati evento, const QString& testo) {
        impostaTraccia({});
        elenco(evento, testo); // reads what it captured, after it took itself away
    });
    connessione.esegui(u"select 1"_s);
    connessione.esegui(u"select 2"_s);
    EXPECT_EQ(mIstruzioni, QStringList{u"select 1"_s});
}

TEST_P(AccessoAllArchivio, OgniFiloHaLaSua)
{
    impostaTraccia(elenca());
    std::thread([this] {
        Connessione connessione = mBase.connessione();
        connessione.esegui(u"select 1"_s);
    }).join();
    EXPECT_EQ(mIstruzioni, QStringList());
}

} // namespace
