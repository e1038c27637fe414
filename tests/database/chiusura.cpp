#include "database/basi.h"

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;

class Chiusura : public Basi
{
protected:
    Chiusura()
    {
        creaTabella();
        riempi(10);
        mRecordset.apri(mConnessione, u"select id from prova order by id"_s);
    }

    Connessione mConnessione = mBase.connessione();
    Recordset mRecordset;
};

TEST_P(Chiusura, dellaConnessioneChiudeIRecordset)
{
    NuovaRiga riga(mConnessione, u"prova"_s);
    riga.imposta(u"id"_s, u"11"_s);
    Comando comando(mConnessione, u"delete from prova where id=?"_s);
    mConnessione.chiudi();
    EXPECT_FALSE(mConnessione.aperta());
    EXPECT_FALSE(mRecordset.aperto());
    EXPECT_TRUE(mRecordset.bof());
    EXPECT_TRUE(mRecordset.eof());
    EXPECT_EQ(mRecordset.colonne(), 0);
    EXPECT_EQ(erroreDi([&] { mRecordset.successivo(); }).sqlstate(), u"24000"_s);
    EXPECT_EQ(erroreDi([&] { mRecordset.valore(0); }).sqlstate(), u"24000"_s);
    EXPECT_EQ(erroreDi([&] { riga.aggiungi(); }).sqlstate(), u"08003"_s);
    EXPECT_EQ(erroreDi([&] { comando.esegui(std::vector<Valore>{u"1"_s}); }).sqlstate(), u"08003"_s);
    EXPECT_EQ(erroreDi([&] { mConnessione.esegui(u"delete from prova"_s); }).sqlstate(), u"08003"_s);
    mConnessione.apri(mBase.stringa());
    EXPECT_FALSE(mRecordset.aperto());
    mRecordset.apri(mConnessione, u"select count(*) from prova"_s);
    EXPECT_EQ(mRecordset.valore(0), u"10"_s);
}

TEST_P(Chiusura, ripetutaNonFaNulla)
{
    mRecordset.chiudi();
    mRecordset.chiudi();
    mConnessione.chiudi();
    mConnessione.chiudi();
    EXPECT_EQ(erroreDi([&] { mRecordset.apri(mConnessione, u"select 1"_s); }).sqlstate(), u"08003"_s);
}

TEST_P(Chiusura, conRilascioChiudeTutto)
{
    ChiudiOggettiDB(&mRecordset, &mConnessione, Rilascio::si, Mantieni::si);
    EXPECT_FALSE(mRecordset.aperto());
    EXPECT_FALSE(mConnessione.aperta());
}

TEST_P(Chiusura, senzaRilascioPuoTenereLaConnessione)
{
    ChiudiOggettiDB(&mRecordset, &mConnessione, Rilascio::no, Mantieni::si);
    EXPECT_FALSE(mRecordset.aperto());
    EXPECT_TRUE(mConnessione.aperta());
    mRecordset.apri(mConnessione, u"select 5"_s);
    EXPECT_EQ(mRecordset.valore(0), u"5"_s);
    ChiudiOggettiDB(&mRecordset, &mConnessione, Rilascio::no, Mantieni::no);
    EXPECT_FALSE(mRecordset.aperto());
    EXPECT_FALSE(mConnessione.aperta());
    mConnessione.apri(mBase.stringa());
    mRecordset.apri(mConnessione, u"select 6"_s);
    EXPECT_EQ(mRecordset.valore(0), u"6"_s);
}

TEST_P(Chiusura, diNienteEDiCioCheEChiusoNonFallisce)
{
    ChiudiOggettiDB(nullptr, nullptr, Rilascio::si, Mantieni::no);
    ChiudiOggettiDB(&mRecordset, nullptr, Rilascio::si, Mantieni::no);
    EXPECT_FALSE(mRecordset.aperto());
    EXPECT_TRUE(mConnessione.aperta());
    ChiudiOggettiDB(nullptr, &mConnessione, Rilascio::si, Mantieni::no);
    ChiudiOggettiDB(&mRecordset, &mConnessione, Rilascio::si, Mantieni::no);
    EXPECT_FALSE(mConnessione.aperta());
}

TEST_P(Chiusura, laConnessioneSiSpostaConISuoiRecordset)
{
    Connessione altra = std::move(mConnessione);
    EXPECT_TRUE(altra.aperta());
    mRecordset.successivo();
    EXPECT_EQ(mRecordset.valore(0), u"2"_s);
    altra = Connessione();
    EXPECT_FALSE(mRecordset.aperto());
}

SU_OGNI_BASE(Chiusura);
