#include "database/limiterighe.h"

#include "database/basi.h"

using namespace giacenza;
using namespace giacenza::prove;

class LimitiRighe : public Basi
{
protected:
    void SetUp() override
    {
        creaTabella();
        riempi(20);
    }

    static int righe(Connessione& connessione)
    {
        Recordset recordset;
        int quante = 0;
        for (recordset.apri(connessione, u"select id from prova order by id"_s); !recordset.eof();
             recordset.successivo())
            ++quante;
        return quante;
    }

    /// The session's limit and the server's, on MariaDB.
    static QString limite(Connessione& connessione, const QString& quale)
    {
        Recordset recordset;
        recordset.apri(connessione, u"select @@%1.sql_select_limit"_s.arg(quale));
        return recordset.valore(0).value_or(QString());
    }

    void atteseComePrima(Connessione& connessione) const
    {
        ASSERT_TRUE(connessione.aperta());
        EXPECT_EQ(righe(connessione), 20);
        if (mariadb()) {
            EXPECT_EQ(limite(connessione, u"session"_s), limite(connessione, u"global"_s));
        }
    }
};
SU_OGNI_BASE(LimitiRighe);

TEST_P(LimitiRighe, valeFinchEsisteESoloSuMariadb)
{
    Connessione connessione = mBase.connessione();
    {
        const LimiteRighe limite(connessione, 7);
        EXPECT_EQ(righe(connessione), mariadb() ? 7 : 20);
    }
    atteseComePrima(connessione);
}

TEST_P(LimitiRighe, tornaComePrimaAncheDopoUnErrore)
{
    Connessione connessione = mBase.connessione();
    erroreDi([&] {
        const LimiteRighe limite(connessione, 7);
        connessione.esegui(u"select niente from nessuna"_s);
    });
    atteseComePrima(connessione);
}

TEST_P(LimitiRighe, nonToglieRigheAlleAltreConnessioni)
{
    Connessione connessione = mBase.connessione();
    Connessione altra = mBase.connessione();
    const LimiteRighe limite(connessione, 7);
    EXPECT_EQ(righe(altra), 20);
}

TEST_P(LimitiRighe, nonEUnIstruzioneDaRaccontare)
{
    int eventi = 0;
    Connessione connessione;
    connessione.apri({mBase.stringa(), [&](EventoDati, const QString&) { ++eventi; }});
    eventi = 0;
    {
        const LimiteRighe limite(connessione, 7);
    }
    EXPECT_EQ(eventi, 0);
}

TEST_P(LimitiRighe, suUnaConnessioneChiusaFallisce)
{
    Connessione connessione;
    EXPECT_EQ(erroreDi([&] { const LimiteRighe limite(connessione, 7); }).sqlstate(), u"08003"_s);
    connessione = mBase.connessione();
    const LimiteRighe limite(connessione, 7);
    connessione.chiudi();
    EXPECT_FALSE(connessione.aperta());
}

class LimitiRigheMariadb : public LimitiRighe
{};
INSTANTIATE_TEST_SUITE_P(Basi, LimitiRigheMariadb, testing::Values("mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(LimitiRigheMariadb, seNonTornaComePrimaLaConnessioneSiChiude)
{
    Connessione connessione = mBase.connessione();
    {
        const LimiteRighe limite(connessione, 7);
        const QString numero = [&] {
            Recordset recordset;
            recordset.apri(connessione, u"select connection_id()"_s);
            return recordset.valore(0).value_or(QString());
        }();
        mBase.esegui(u"kill connection %1;"_s.arg(numero));
    }
    EXPECT_FALSE(connessione.aperta());
}
