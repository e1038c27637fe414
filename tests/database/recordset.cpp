#include "database/basi.h"

#include <utility>

using namespace Qt::StringLiterals;

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
    recordset.apri(mConnessione, u"select id from prova order by id;"_s);
    EXPECT_TRUE(recordset.aperto());
    QStringList visti;
    for (; !recordset.eof(); recordset.successivo())
        visti += *recordset.valore(0);
    EXPECT_EQ(visti.join(u' '), u"1 2 3 4 5"_s);
    EXPECT_FALSE(recordset.bof());
    EXPECT_EQ(erroreDi([&] { recordset.valore(0); }).sqlstate(), u"02000"_s);
    recordset.successivo();
    EXPECT_TRUE(recordset.eof());
    recordset.primo();
    EXPECT_EQ(recordset.valore(0), u"1"_s);
    recordset.successivo();
    EXPECT_EQ(recordset.valore(0), u"2"_s);
}

TEST_P(Righe, soloAvantiNonTornanoIndietro)
{
    riempi(3);
    Recordset recordset;
    recordset.apri(mConnessione, u"select id from prova order by id"_s, Recordset::Cursore::soloAvanti);
    recordset.primo();
    EXPECT_EQ(recordset.valore(0), u"1"_s);
    recordset.successivo();
    EXPECT_EQ(recordset.valore(0), u"2"_s);
    EXPECT_EQ(erroreDi([&] { recordset.primo(); }).sqlstate(), u"24000"_s);
    EXPECT_EQ(recordset.valore(0), u"2"_s);
    recordset.successivo();
    recordset.successivo();
    EXPECT_TRUE(recordset.eof());
    EXPECT_FALSE(recordset.bof());
    recordset.apri(mConnessione, u"select id from prova order by id"_s, Recordset::Cursore::soloAvanti);
    EXPECT_EQ(ultima(recordset), u"3"_s);
}

TEST_P(Righe, nessunaRigaNonEUnErrore)
{
    for (auto cursore : {Recordset::Cursore::chiave, Recordset::Cursore::soloAvanti}) {
        Recordset recordset;
        recordset.apri(mConnessione, u"select * from prova"_s, cursore);
        EXPECT_TRUE(recordset.bof());
        EXPECT_TRUE(recordset.eof());
        EXPECT_EQ(recordset.colonne(), 6);
        recordset.primo();
        recordset.successivo();
        EXPECT_TRUE(recordset.bof());
        EXPECT_TRUE(recordset.eof());
        EXPECT_EQ(erroreDi([&] { recordset.valore(u"id"_s); }).sqlstate(), u"02000"_s);
    }
}

TEST_P(Righe, colonnePerNomeSenzaMaiuscoleELaPrimaDiDueUguali)
{
    mConnessione.esegui(u"insert into prova (id, n) values (1, 8)"_s);
    Recordset recordset;
    recordset.apri(mConnessione, u"select id as Codice, n as `Località`, n+1 as codice from Prova"_s);
    EXPECT_EQ(recordset.colonne(), 3);
    EXPECT_EQ(recordset.nomeColonna(0), u"Codice"_s);
    EXPECT_EQ(recordset.nomeColonna(1), u"Località"_s);
    EXPECT_EQ(recordset.indice(u"CODICE"_s), 0);
    EXPECT_EQ(recordset.valore(u"codice"_s), u"1"_s);
    EXPECT_EQ(recordset.valore(u"LOCALITÀ"_s), u"8"_s);
    EXPECT_EQ(recordset.valore(2), u"9"_s);
    EXPECT_EQ(recordset.indice(u"altro"_s), -1);
    EXPECT_EQ(erroreDi([&] { recordset.valore(u"altro"_s); }).sqlstate(), u"42S22"_s);
    EXPECT_EQ(erroreDi([&] { recordset.valore(3); }).sqlstate(), u"42S22"_s);
    EXPECT_EQ(erroreDi([&] { recordset.nomeColonna(-1); }).sqlstate(), u"42S22"_s);
}

TEST_P(Righe, nomiDiColonnaLunghiQuantoIDriverNeDanno)
{
    // Both drivers give 255 bytes and no more.
    const QString nome(127, u'è');
    Recordset recordset;
    recordset.apri(mConnessione, u"select 1 as `%1`"_s.arg(nome));
    EXPECT_EQ(recordset.nomeColonna(0), nome);
}

TEST_P(Righe, dueLettureInsiemeNonSiDisturbano)
{
    riempi(2000);
    Recordset una;
    Recordset altra;
    una.apri(mConnessione, u"select id, testo from prova order by id"_s);
    altra.apri(mConnessione, u"select id, testo from prova order by id desc"_s,
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
    recordset.apri(mConnessione, u"select id, testo from prova order by id"_s);
    mConnessione.esegui(u"update prova set n=1 where id=1500"_s);
    EXPECT_EQ(ultima(recordset), u"2000"_s);
    recordset.primo();
    EXPECT_EQ(recordset.valore(0), u"1"_s);
    EXPECT_EQ(mBase.leggi(u"select n from prova where id=1500"_s), u"1"_s);
}

/// A screen reads the first row of a lookup, another workstation writes, then the screen writes: the reading
/// that was left half way must not stand in the way.
TEST_P(Righe, unaLetturaLasciataAMetaNonFermaLaScrittura)
{
    riempi(2000);
    Recordset recordset;
    recordset.apri(mConnessione, u"select id, testo from prova order by id"_s);
    mBase.esegui(u"update prova set n=2 where id=3"_s);
    EXPECT_EQ(mConnessione.esegui(u"update prova set n=1 where id=1500"_s), 1);
    EXPECT_EQ(recordset.valore(0), u"1"_s);
}

/// The rest of a reading is read before another statement runs, and given out as before.
TEST_P(Righe, soloAvantiNonPerdonoRigheSeLaConnessioneFaAltro)
{
    riempi(2000);
    Recordset recordset;
    recordset.apri(mConnessione, u"select id from prova order by id"_s, Recordset::Cursore::soloAvanti);
    recordset.successivo();
    mConnessione.esegui(u"delete from prova"_s);
    for (int i = 2; i <= 2000; ++i) {
        ASSERT_EQ(recordset.valore(0), QString::number(i));
        recordset.successivo();
    }
    EXPECT_TRUE(recordset.eof());
    EXPECT_EQ(erroreDi([&] { recordset.primo(); }).sqlstate(), u"24000"_s);
}

/// What a second lookup of a screen finds is what is there now, not what was there at the first.
TEST_P(Righe, unaLetturaAMetaNonNascondeCioCheUnAltroHaScritto)
{
    riempi(2000);
    Recordset prima;
    prima.apri(mConnessione, u"select id from prova order by id"_s);
    mBase.esegui(u"update prova set n=77 where id=1"_s);
    Recordset seconda;
    seconda.apri(mConnessione, u"select n from prova where id=1"_s);
    EXPECT_EQ(seconda.valore(0), u"77"_s);
    EXPECT_EQ(prima.valore(0), u"1"_s);
}

TEST_P(Righe, unIstruzioneSenzaRigheNonEUnaLettura)
{
    Recordset recordset;
    EXPECT_EQ(erroreDi([&] { recordset.apri(mConnessione, u"delete from prova"_s); }).sqlstate(), u"07005"_s);
    EXPECT_FALSE(recordset.aperto());
}

TEST_P(Righe, parametriNellOrdineDeiSegni)
{
    riempi(10);
    Recordset recordset;
    recordset.apri(mConnessione, u"select id from prova where id>=? and id<? order by id"_s,
                   Recordset::Cursore::soloAvanti, std::vector<Valore>{u"4"_s, u"6"_s});
    EXPECT_EQ(recordset.valore(0), u"4"_s);
    recordset.successivo();
    EXPECT_EQ(recordset.valore(0), u"5"_s);
    recordset.successivo();
    EXPECT_TRUE(recordset.eof());
}

TEST_P(Righe, unRecordsetSiSposta)
{
    riempi(2);
    Recordset recordset;
    recordset.apri(mConnessione, u"select id from prova order by id"_s);
    Recordset altro = std::move(recordset);
    altro.successivo();
    EXPECT_EQ(altro.valore(0), u"2"_s);
}

SU_OGNI_BASE(Righe);
