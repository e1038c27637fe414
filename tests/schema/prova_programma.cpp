#include "support/bancadati.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

#include <QProcess>
#include <QTemporaryDir>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

struct Uscita
{
    int codice = -1;
    std::string detto;
    std::string errori;
};

Uscita generaDati(const QStringList& argomenti)
{
    QProcess processo;
    processo.start(QStringLiteral(GENERA_DATI), argomenti);
    if (!processo.waitForFinished(60'000)) {
        processo.kill();
        processo.waitForFinished();
        ADD_FAILURE() << "genera-dati: " << processo.errorString().toStdString();
        return {};
    }
    return {processo.exitStatus() == QProcess::NormalExit ? processo.exitCode() : -1,
            processo.readAllStandardOutput().toStdString(), processo.readAllStandardError().toStdString()};
}

class GeneraDati : public testing::Test
{
protected:
    QString stringa(const QString& nome) const
    {
        return u"DRIVER={SQLite3};Database=%1;StepAPI=1"_s.arg(mCartella.filePath(nome));
    }

    QTemporaryDir mCartella;
};

TEST_F(GeneraDati, creaRiempieELoDice)
{
    const QString dove = stringa(u"è nuovo.db"_s);
    const QStringList argomenti{dove,      u"--crea"_s, u"--spedizioni"_s,
                                u"1200"_s, u"--oggi"_s, u"2026-03-04"_s};
    const Uscita uscita = generaDati(argomenti);
    EXPECT_EQ(uscita.codice, 0) << uscita.errori;
    EXPECT_EQ(uscita.errori, "");
    EXPECT_THAT(uscita.detto, testing::MatchesRegex("Creati 40 clienti, 1\\.200 spedizioni e [0-9]+ giacenze "
                                                    "fino al 04/03/2026\\.\n"));
    Connessione connessione;
    connessione.apri(dove);
    Recordset righe;
    righe.apri(connessione, u"select count(*), max(ledtlv) from letve00f"_s);
    EXPECT_EQ(righe.valore(0), u"1200"_s);
    EXPECT_EQ(righe.valore(1), u"2026-03-04"_s);
}

TEST_F(GeneraDati, ilSecondoGiroSiRifiuta)
{
    const QString dove = stringa(u"prova.db"_s);
    ASSERT_EQ(generaDati({dove, u"--crea"_s, u"--spedizioni"_s, u"10"_s}).codice, 0);
    const Uscita senza = generaDati({dove});
    EXPECT_EQ(senza.codice, 3);
    EXPECT_EQ(senza.errori,
              "La tabella filiali contiene già dei dati: i dati dimostrativi si aggiungono solo a un "
              "database vuoto. Non è stato scritto nulla.\n");
    EXPECT_EQ(senza.detto, "");
    EXPECT_EQ(generaDati({dove, u"--crea"_s}).codice, 3);
}

TEST_F(GeneraDati, unDatabaseCheNonSiApreELErroreDelDatabase)
{
    const Uscita driver = generaDati({u"DRIVER={Inesistente};Database=x"_s, u"--crea"_s});
    EXPECT_EQ(driver.codice, 1);
    EXPECT_THAT(driver.errori,
                StartsWith("I dati non sono stati creati: il database ha risposto con l'errore "));
    const Uscita cartella = generaDati({stringa(u"manca/prova.db"_s), u"--crea"_s});
    EXPECT_EQ(cartella.codice, 1);
    EXPECT_THAT(cartella.errori, StartsWith("I dati non sono stati creati"));
}

TEST_F(GeneraDati, unComandoErratoSiSpiega)
{
    const Uscita uscita = generaDati({u"--spedizioni"_s, u"tante"_s, u"DSN=x"_s});
    EXPECT_EQ(uscita.codice, 2);
    EXPECT_EQ(uscita.errori,
              "Dopo --spedizioni va un numero intero da 0 a 10.000.000, non \"tante\". L'uso si legge con "
              "genera-dati --aiuto\n");
}

TEST_F(GeneraDati, lAiutoElencaICodici)
{
    const Uscita uscita = generaDati({u"--aiuto"_s});
    EXPECT_EQ(uscita.codice, 0);
    EXPECT_THAT(uscita.detto, HasSubstr("--oggi aaaa-mm-gg"));
    EXPECT_THAT(uscita.detto, HasSubstr("Codici di uscita: 0 fatto, 1 "));
}

TEST(GeneraDatiMariadb, riempieUnServer)
{
    const BancaDati base("mariadb", Contenuto::vuoto);
    const QString nome = base.leggi(u"select database()"_s).value_or(QString());
    const QString dove = stringaServer() + u";DATABASE="_s + nome;
    const Uscita uscita = generaDati({dove, u"--crea"_s, u"--spedizioni"_s, u"100"_s});
    EXPECT_EQ(uscita.codice, 0) << uscita.errori;
    EXPECT_EQ(base.leggi(u"select count(*) from letve00f"_s), u"100"_s);
    EXPECT_EQ(base.leggi(u"select `Località` from filiali where codice='01'"_s), u"Milano"_s);
}

/// The user of the workstations may not fill the database: it is refused, and nothing is left of the attempt.
TEST(GeneraDatiMariadb, ilPostoDiLavoroNonPuo)
{
    const BancaDati base("mariadb");
    const Uscita uscita = generaDati({base.stringa(), u"--spedizioni"_s, u"100"_s});
    EXPECT_EQ(uscita.codice, 1);
    EXPECT_THAT(uscita.errori, HasSubstr("filiali"));
    EXPECT_EQ(base.leggi(u"select count(*) from filiali"_s), u"0"_s);
}

} // namespace
