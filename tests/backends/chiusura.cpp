#include "backends/basi.h"

using namespace giacenza;
using namespace giacenza::prove;

class Chiusura : public Basi
{
protected:
    Chiusura()
    {
        creaTabella();
        riempi(10);
        mRecordset.apri(mConnessione, QStringLiteral("select id from prova order by id"));
    }

    Connessione mConnessione = mBase.connessione();
    Recordset mRecordset;
};

TEST_P(Chiusura, dellaConnessioneChiudeIRecordset)
{
    Recordset tabella;
    tabella.apriTabella(mConnessione, QStringLiteral("prova"));
    tabella.aggiungi();
    Comando comando(mConnessione, QStringLiteral("delete from prova where id=?"));
    mConnessione.chiudi();
    EXPECT_FALSE(mConnessione.aperta());
    EXPECT_FALSE(mRecordset.aperto());
    EXPECT_TRUE(mRecordset.bof());
    EXPECT_TRUE(mRecordset.eof());
    EXPECT_EQ(mRecordset.colonne(), 0);
    EXPECT_EQ(erroreDi([&] { mRecordset.successivo(); }).sqlstate(), QStringLiteral("24000"));
    EXPECT_EQ(erroreDi([&] { mRecordset.valore(0); }).sqlstate(), QStringLiteral("24000"));
    EXPECT_EQ(erroreDi([&] { tabella.aggiorna(); }).sqlstate(), QStringLiteral("24000"));
    EXPECT_EQ(erroreDi([&] { comando.esegui(std::vector<Valore>{QStringLiteral("1")}); }).sqlstate(),
              QStringLiteral("08003"));
    EXPECT_EQ(erroreDi([&] { mConnessione.esegui(QStringLiteral("delete from prova")); }).sqlstate(),
              QStringLiteral("08003"));
    mConnessione.apri(mBase.stringa());
    EXPECT_FALSE(mRecordset.aperto());
    mRecordset.apri(mConnessione, QStringLiteral("select count(*) from prova"));
    EXPECT_EQ(mRecordset.valore(0), QStringLiteral("10"));
}

TEST_P(Chiusura, ripetutaNonFaNulla)
{
    mRecordset.chiudi();
    mRecordset.chiudi();
    mConnessione.chiudi();
    mConnessione.chiudi();
    EXPECT_EQ(erroreDi([&] { mRecordset.apri(mConnessione, QStringLiteral("select 1")); }).sqlstate(),
              QStringLiteral("08003"));
}

TEST_P(Chiusura, conRilascioChiudeTutto)
{
    ChiudiOggettiDB(&mRecordset, &mConnessione, true, true);
    EXPECT_FALSE(mRecordset.aperto());
    EXPECT_FALSE(mConnessione.aperta());
}

TEST_P(Chiusura, senzaRilascioPuoTenereLaConnessione)
{
    ChiudiOggettiDB(&mRecordset, &mConnessione, false, true);
    EXPECT_FALSE(mRecordset.aperto());
    EXPECT_TRUE(mConnessione.aperta());
    mRecordset.apri(mConnessione, QStringLiteral("select 5"));
    EXPECT_EQ(mRecordset.valore(0), QStringLiteral("5"));
    ChiudiOggettiDB(&mRecordset, &mConnessione, false, false);
    EXPECT_FALSE(mRecordset.aperto());
    EXPECT_FALSE(mConnessione.aperta());
    mConnessione.apri(mBase.stringa());
    mRecordset.apri(mConnessione, QStringLiteral("select 6"));
    EXPECT_EQ(mRecordset.valore(0), QStringLiteral("6"));
}

TEST_P(Chiusura, diNienteEDiCioCheEChiusoNonFallisce)
{
    ChiudiOggettiDB(nullptr, nullptr, true, false);
    ChiudiOggettiDB(&mRecordset, nullptr, true, false);
    EXPECT_FALSE(mRecordset.aperto());
    EXPECT_TRUE(mConnessione.aperta());
    ChiudiOggettiDB(nullptr, &mConnessione, true, false);
    ChiudiOggettiDB(&mRecordset, &mConnessione, true, false);
    EXPECT_FALSE(mConnessione.aperta());
}

TEST_P(Chiusura, laConnessioneSiSpostaConISuoiRecordset)
{
    Connessione altra = std::move(mConnessione);
    EXPECT_TRUE(altra.aperta());
    mRecordset.successivo();
    EXPECT_EQ(mRecordset.valore(0), QStringLiteral("2"));
    altra = Connessione();
    EXPECT_FALSE(mRecordset.aperto());
}

SU_OGNI_BASE(Chiusura);
