#include "backends/basi.h"

using namespace giacenza;
using namespace giacenza::prove;

class Errori : public Basi
{
protected:
    Errori() { creaTabella(); }

    Connessione mConnessione = mBase.connessione();
};

TEST_P(Errori, diSintassiHannoStatoCodiceTestoEIstruzione)
{
    const QString istruzione = QStringLiteral("selec 1;");
    const ErroreDatabase errore = erroreDi([&] { mConnessione.esegui(istruzione); });
    EXPECT_EQ(errore.sqlstate(), scegli(QStringLiteral("42000"), QStringLiteral("HY000")));
    EXPECT_EQ(errore.codiceNativo(), mariadb() ? 1064 : 1);
    EXPECT_EQ(errore.istruzione(), istruzione);
    if (mariadb())
        EXPECT_TRUE(errore.testo().contains(QStringLiteral("You have an error in your SQL syntax")))
            << errore.what();
    else
        EXPECT_EQ(errore.testo(), QStringLiteral("[SQLite]near \"selec\": syntax error (1)"));
    EXPECT_TRUE(mConnessione.aperta());
}

TEST_P(Errori, diUnaTabellaCheNonCE)
{
    Recordset recordset;
    const ErroreDatabase lettura =
        erroreDi([&] { recordset.apri(mConnessione, QStringLiteral("select * from mancante")); });
    EXPECT_EQ(lettura.sqlstate(), scegli(QStringLiteral("42S02"), QStringLiteral("HY000")));
    EXPECT_EQ(lettura.istruzione(), QStringLiteral("select * from mancante"));
    const ErroreDatabase tabella =
        erroreDi([&] { recordset.apriTabella(mConnessione, QStringLiteral("mancante")); });
    EXPECT_EQ(tabella.sqlstate(), scegli(QStringLiteral("42S02"), QStringLiteral("HY000")));
    EXPECT_EQ(tabella.istruzione(), QStringLiteral("select * from mancante"));
    EXPECT_FALSE(recordset.aperto());
}

TEST_P(Errori, diUnaChiaveDoppia)
{
    Comando inserisci(mConnessione, QStringLiteral("insert into prova (id) values (?)"));
    inserisci.esegui(std::vector<Valore>{QStringLiteral("1")});
    const ErroreDatabase errore =
        erroreDi([&] { inserisci.esegui(std::vector<Valore>{QStringLiteral("1")}); });
    EXPECT_EQ(errore.sqlstate(), scegli(QStringLiteral("23000"), QStringLiteral("HY000")));
    EXPECT_EQ(errore.codiceNativo(), mariadb() ? 1062 : 19);
    EXPECT_EQ(errore.istruzione(), QStringLiteral("insert into prova (id) values (?)"));
    EXPECT_EQ(inserisci.esegui(std::vector<Valore>{QStringLiteral("2")}), 1);
}

TEST_P(Errori, delTestoLungoTornaIntero)
{
    const QString lungo(800, u'z');
    const ErroreDatabase errore =
        erroreDi([&] { mConnessione.esegui(QStringLiteral("select 1 from prova where %1=1").arg(lungo)); });
    // MariaDB repeats 64 characters of a name; of SQLite's text the driver manager keeps 512 in all.
    if (mariadb())
        EXPECT_TRUE(errore.testo().contains(lungo.left(64))) << errore.what();
    else
        EXPECT_EQ(errore.testo(), QStringLiteral("[SQLite]no such column: ") + lungo.left(512 - 24));
    EXPECT_EQ(errore.istruzione().size(), 800 + 28);
}

TEST_P(Errori, dueIstruzioniInUnTestoSonoRifiutate)
{
    const ErroreDatabase errore = erroreDi([&] {
        mConnessione.esegui(
            QStringLiteral("insert into prova (id) values (1); insert into prova (id) values (2)"));
    });
    EXPECT_FALSE(errore.testo().isEmpty());
    EXPECT_EQ(mBase.leggi(QStringLiteral("select count(*) from prova")), QStringLiteral("0"));
}

TEST_P(Errori, valoriInMenoOInPiuNonArrivanoAllaTabella)
{
    Comando inserisci(mConnessione, QStringLiteral("insert into prova (id, n) values (?, ?)"));
    const std::vector<Valore> tre{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")};
    for (const std::size_t quanti : {std::size_t{0}, std::size_t{1}, std::size_t{3}}) {
        const ErroreDatabase errore = erroreDi([&] { inserisci.esegui(std::span(tre).first(quanti)); });
        EXPECT_EQ(errore.sqlstate(), QStringLiteral("07002"));
    }
    EXPECT_EQ(mBase.leggi(QStringLiteral("select count(*) from prova")), QStringLiteral("0"));
}

SU_OGNI_BASE(Errori);
