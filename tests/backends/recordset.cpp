#include "backends/basi.h"

#include <utility>

using namespace giacenza;
using namespace giacenza::prove;

class Righe : public Basi
{
protected:
    Righe() { creaTabella(); }

    Connessione mConnessione = mBase.connessione();
};

TEST_P(Righe, siPercorronoAvantiESiTornaAllaPrima)
{
    riempi(5);
    Recordset recordset;
    EXPECT_FALSE(recordset.aperto());
    recordset.apri(mConnessione, QStringLiteral("select id from prova order by id;"));
    EXPECT_TRUE(recordset.aperto());
    QStringList visti;
    for (; !recordset.eof(); recordset.successivo())
        visti += *recordset.valore(0);
    EXPECT_EQ(visti.join(u' '), QStringLiteral("1 2 3 4 5"));
    EXPECT_FALSE(recordset.bof());
    EXPECT_EQ(erroreDi([&] { recordset.valore(0); }).sqlstate(), QStringLiteral("02000"));
    recordset.successivo();
    EXPECT_TRUE(recordset.eof());
    recordset.primo();
    EXPECT_EQ(recordset.valore(0), QStringLiteral("1"));
    recordset.ultimo();
    EXPECT_EQ(recordset.valore(0), QStringLiteral("5"));
    EXPECT_FALSE(recordset.eof());
    recordset.primo();
    recordset.successivo();
    EXPECT_EQ(recordset.valore(0), QStringLiteral("2"));
}

TEST_P(Righe, soloAvantiNonTornanoIndietro)
{
    riempi(3);
    Recordset recordset;
    recordset.apri(mConnessione, QStringLiteral("select id from prova order by id"),
                   Recordset::Cursore::soloAvanti);
    recordset.primo();
    EXPECT_EQ(recordset.valore(0), QStringLiteral("1"));
    recordset.successivo();
    EXPECT_EQ(recordset.valore(0), QStringLiteral("2"));
    EXPECT_EQ(erroreDi([&] { recordset.primo(); }).sqlstate(), QStringLiteral("24000"));
    EXPECT_EQ(erroreDi([&] { recordset.ultimo(); }).sqlstate(), QStringLiteral("24000"));
    EXPECT_EQ(recordset.valore(0), QStringLiteral("2"));
    recordset.successivo();
    recordset.successivo();
    EXPECT_TRUE(recordset.eof());
    EXPECT_FALSE(recordset.bof());
    recordset.apri(mConnessione, QStringLiteral("select id from prova order by id"),
                   Recordset::Cursore::soloAvanti);
    recordset.ultimo();
    EXPECT_EQ(recordset.valore(0), QStringLiteral("3"));
}

TEST_P(Righe, nessunaRigaNonEUnErrore)
{
    for (auto cursore : {Recordset::Cursore::chiave, Recordset::Cursore::soloAvanti}) {
        Recordset recordset;
        recordset.apri(mConnessione, QStringLiteral("select * from prova"), cursore);
        EXPECT_TRUE(recordset.bof());
        EXPECT_TRUE(recordset.eof());
        EXPECT_EQ(recordset.colonne(), 6);
        recordset.primo();
        recordset.successivo();
        recordset.ultimo();
        EXPECT_TRUE(recordset.bof());
        EXPECT_TRUE(recordset.eof());
        EXPECT_EQ(erroreDi([&] { recordset.valore(QStringLiteral("id")); }).sqlstate(),
                  QStringLiteral("02000"));
    }
}

TEST_P(Righe, colonnePerNomeSenzaMaiuscoleELaPrimaDiDueUguali)
{
    mConnessione.esegui(QStringLiteral("insert into prova (id, n) values (1, 8)"));
    Recordset recordset;
    recordset.apri(mConnessione,
                   QStringLiteral("select id as Codice, n as `Località`, n+1 as codice from Prova"));
    EXPECT_EQ(recordset.colonne(), 3);
    EXPECT_EQ(recordset.nomeColonna(0), QStringLiteral("Codice"));
    EXPECT_EQ(recordset.nomeColonna(1), QStringLiteral("Località"));
    EXPECT_EQ(recordset.indice(QStringLiteral("CODICE")), 0);
    EXPECT_EQ(recordset.valore(QStringLiteral("codice")), QStringLiteral("1"));
    EXPECT_EQ(recordset.valore(QStringLiteral("LOCALITÀ")), QStringLiteral("8"));
    EXPECT_EQ(recordset.valore(2), QStringLiteral("9"));
    EXPECT_EQ(recordset.indice(QStringLiteral("altro")), -1);
    EXPECT_EQ(erroreDi([&] { recordset.valore(QStringLiteral("altro")); }).sqlstate(),
              QStringLiteral("42S22"));
    EXPECT_EQ(erroreDi([&] { recordset.valore(3); }).sqlstate(), QStringLiteral("42S22"));
    EXPECT_EQ(erroreDi([&] { recordset.nomeColonna(-1); }).sqlstate(), QStringLiteral("42S22"));
}

TEST_P(Righe, nomiDiColonnaLunghiQuantoIDriverNeDanno)
{
    // Both drivers give 255 bytes and no more.
    const QString nome(127, u'è');
    Recordset recordset;
    recordset.apri(mConnessione, QStringLiteral("select 1 as `%1`").arg(nome));
    EXPECT_EQ(recordset.nomeColonna(0), nome);
}

TEST_P(Righe, dueLettureInsiemeNonSiDisturbano)
{
    riempi(2000);
    Recordset una;
    Recordset altra;
    una.apri(mConnessione, QStringLiteral("select id, testo from prova order by id"));
    altra.apri(mConnessione, QStringLiteral("select id, testo from prova order by id desc"),
               Recordset::Cursore::soloAvanti);
    for (int i = 1; i <= 2000; ++i) {
        ASSERT_EQ(una.valore(0), QString::number(i));
        ASSERT_EQ(altra.valore(0), QString::number(2001 - i));
        una.successivo();
        altra.successivo();
    }
    EXPECT_TRUE(una.eof());
    EXPECT_TRUE(altra.eof());
}

TEST_P(Righe, siLeggonoAncheDopoUnaScritturaSullaStessaConnessione)
{
    riempi(2000);
    Recordset recordset;
    recordset.apri(mConnessione, QStringLiteral("select id, testo from prova order by id"));
    mConnessione.esegui(QStringLiteral("update prova set n=1 where id=1500"));
    recordset.ultimo();
    EXPECT_EQ(recordset.valore(0), QStringLiteral("2000"));
    recordset.primo();
    EXPECT_EQ(recordset.valore(0), QStringLiteral("1"));
    EXPECT_EQ(mBase.leggi(QStringLiteral("select n from prova where id=1500")), QStringLiteral("1"));
}

/// A screen reads the first row of a lookup, another workstation writes, then the screen writes: the reading
/// that was left half way must not stand in the way.
TEST_P(Righe, unaLetturaLasciataAMetaNonFermaLaScrittura)
{
    riempi(2000);
    Recordset recordset;
    recordset.apri(mConnessione, QStringLiteral("select id, testo from prova order by id"));
    mBase.esegui(QStringLiteral("update prova set n=2 where id=3"));
    EXPECT_EQ(mConnessione.esegui(QStringLiteral("update prova set n=1 where id=1500")), 1);
    EXPECT_EQ(recordset.valore(0), QStringLiteral("1"));
}

/// The rest of a reading is read before another statement runs, and given out as before.
TEST_P(Righe, soloAvantiNonPerdonoRigheSeLaConnessioneFaAltro)
{
    riempi(2000);
    Recordset recordset;
    recordset.apri(mConnessione, QStringLiteral("select id from prova order by id"),
                   Recordset::Cursore::soloAvanti);
    recordset.successivo();
    mConnessione.esegui(QStringLiteral("delete from prova"));
    for (int i = 2; i <= 2000; ++i) {
        ASSERT_EQ(recordset.valore(0), QString::number(i));
        recordset.successivo();
    }
    EXPECT_TRUE(recordset.eof());
    EXPECT_EQ(erroreDi([&] { recordset.primo(); }).sqlstate(), QStringLiteral("24000"));
}

/// What a second lookup of a screen finds is what is there now, not what was there at the first.
TEST_P(Righe, unaLetturaAMetaNonNascondeCioCheUnAltroHaScritto)
{
    riempi(2000);
    Recordset prima;
    prima.apri(mConnessione, QStringLiteral("select id from prova order by id"));
    mBase.esegui(QStringLiteral("update prova set n=77 where id=1"));
    Recordset seconda;
    seconda.apri(mConnessione, QStringLiteral("select n from prova where id=1"));
    EXPECT_EQ(seconda.valore(0), QStringLiteral("77"));
    EXPECT_EQ(prima.valore(0), QStringLiteral("1"));
}

TEST_P(Righe, unIstruzioneSenzaRigheNonEUnaLettura)
{
    Recordset recordset;
    EXPECT_EQ(erroreDi([&] { recordset.apri(mConnessione, QStringLiteral("delete from prova")); }).sqlstate(),
              QStringLiteral("07005"));
    EXPECT_FALSE(recordset.aperto());
}

TEST_P(Righe, parametriNellOrdineDeiSegni)
{
    riempi(10);
    Recordset recordset;
    recordset.apri(mConnessione, QStringLiteral("select id from prova where id>=? and id<? order by id"),
                   Recordset::Cursore::soloAvanti,
                   std::vector<Valore>{QStringLiteral("4"), QStringLiteral("6")});
    EXPECT_EQ(recordset.valore(0), QStringLiteral("4"));
    recordset.successivo();
    EXPECT_EQ(recordset.valore(0), QStringLiteral("5"));
    recordset.successivo();
    EXPECT_TRUE(recordset.eof());
}

TEST_P(Righe, unRecordsetSiSposta)
{
    riempi(2);
    Recordset recordset;
    recordset.apri(mConnessione, QStringLiteral("select id from prova order by id"));
    Recordset altro = std::move(recordset);
    altro.successivo();
    EXPECT_EQ(altro.valore(0), QStringLiteral("2"));
}

SU_OGNI_BASE(Righe);
