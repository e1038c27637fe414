#include "database/basi.h"

using namespace Qt::StringLiterals;

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
    const QString istruzione = u"selec 1;"_s;
    const ErroreDatabase errore = erroreDi([&] { mConnessione.esegui(istruzione); });
    EXPECT_EQ(errore.sqlstate(), scegli(u"42000"_s, u"HY000"_s));
    EXPECT_EQ(errore.codiceNativo(), mariadb() ? 1064 : 1);
    EXPECT_EQ(errore.istruzione(), istruzione);
    if (mariadb())
        EXPECT_TRUE(errore.testo().contains(u"You have an error in your SQL syntax"_s)) << errore.what();
    else
        EXPECT_EQ(errore.testo(), u"[SQLite]near \"selec\": syntax error (1)"_s);
    EXPECT_TRUE(mConnessione.aperta());
}

TEST_P(Errori, diUnaTabellaCheNonCE)
{
    Recordset recordset;
    const ErroreDatabase lettura =
        erroreDi([&] { recordset.apri(mConnessione, u"select * from mancante"_s); });
    EXPECT_EQ(lettura.sqlstate(), scegli(u"42S02"_s, u"HY000"_s));
    EXPECT_EQ(lettura.istruzione(), u"select * from mancante"_s);
    const ErroreDatabase tabella = erroreDi([&] { NuovaRiga(mConnessione, u"mancante"_s); });
    EXPECT_EQ(tabella.sqlstate(), scegli(u"42S02"_s, u"HY000"_s));
    EXPECT_EQ(tabella.istruzione(), u"select * from mancante"_s);
    EXPECT_FALSE(recordset.aperto());
}

TEST_P(Errori, diUnaChiaveDoppia)
{
    Comando inserisci(mConnessione, u"insert into prova (id) values (?)"_s);
    inserisci.esegui(std::vector<Valore>{u"1"_s});
    const ErroreDatabase errore = erroreDi([&] { inserisci.esegui(std::vector<Valore>{u"1"_s}); });
    EXPECT_EQ(errore.sqlstate(), scegli(u"23000"_s, u"HY000"_s));
    EXPECT_EQ(errore.codiceNativo(), mariadb() ? 1062 : 19);
    EXPECT_EQ(errore.istruzione(), u"insert into prova (id) values (?)"_s);
    EXPECT_EQ(inserisci.esegui(std::vector<Valore>{u"2"_s}), 1);
}

TEST_P(Errori, delTestoLungoTornaIntero)
{
    const QString lungo(800, u'z');
    const ErroreDatabase errore =
        erroreDi([&] { mConnessione.esegui(u"select 1 from prova where %1=1"_s.arg(lungo)); });
    // MariaDB repeats 64 characters of a name; of SQLite's text the driver manager keeps 512 in all.
    if (mariadb())
        EXPECT_TRUE(errore.testo().contains(lungo.left(64))) << errore.what();
    else
        EXPECT_EQ(errore.testo(), u"[SQLite]no such column: "_s + lungo.left(512 - 24));
    EXPECT_EQ(errore.istruzione().size(), 800 + 28);
}

TEST_P(Errori, dueIstruzioniInUnTestoSonoRifiutate)
{
    const ErroreDatabase errore = erroreDi([&] {
        mConnessione.esegui(u"insert into prova (id) values (1); insert into prova (id) values (2)"_s);
    });
    EXPECT_FALSE(errore.testo().isEmpty());
    EXPECT_EQ(mBase.leggi(u"select count(*) from prova"_s), u"0"_s);
}

TEST_P(Errori, valoriInMenoOInPiuNonArrivanoAllaTabella)
{
    Comando inserisci(mConnessione, u"insert into prova (id, n) values (?, ?)"_s);
    const std::vector<Valore> tre{u"1"_s, u"2"_s, u"3"_s};
    for (const std::size_t quanti : {std::size_t{0}, std::size_t{1}, std::size_t{3}}) {
        const ErroreDatabase errore = erroreDi([&] { inserisci.esegui(std::span(tre).first(quanti)); });
        EXPECT_EQ(errore.sqlstate(), u"07002"_s);
    }
    EXPECT_EQ(mBase.leggi(u"select count(*) from prova"_s), u"0"_s);
}

SU_OGNI_BASE(Errori);
