#include "data/transazione.h"

#include "backends/basi.h"
#include "data/traccia.h"

using namespace giacenza;
using namespace giacenza::prove;

class Transazioni : public Basi
{
protected:
    Transazioni() { creaTabella(); }

    QString righe() const { return *mBase.leggi(QStringLiteral("select count(*) from prova")); }

    Connessione mConnessione = mBase.connessione();
};

namespace {

/// While it lives, one event fails as the database would.
class Guasto
{
public:
    explicit Guasto(EventoDati quale)
        : mPrima(impostaTraccia([quale](EventoDati evento, const QString& testo) {
              if (evento == quale)
                  throw ErroreDatabase(QStringLiteral("HY000"), 99, QStringLiteral("guasto di prova"), testo);
          }))
    {}
    Guasto(const Guasto&) = delete;
    Guasto& operator=(const Guasto&) = delete;
    ~Guasto() { impostaTraccia(mPrima); }

private:
    Traccia mPrima;
};

} // namespace

TEST_P(Transazioni, confermateRestano)
{
    {
        Transazione transazione(mConnessione);
        mConnessione.esegui(QStringLiteral("insert into prova (id) values (1)"));
        EXPECT_EQ(righe(), QStringLiteral("0"));
        transazione.conferma();
        EXPECT_EQ(righe(), QStringLiteral("1"));
    }
    EXPECT_EQ(righe(), QStringLiteral("1"));
    mConnessione.esegui(QStringLiteral("insert into prova (id) values (2)"));
    EXPECT_EQ(righe(), QStringLiteral("2"));
}

TEST_P(Transazioni, abbandonateNonLascianoTraccia)
{
    {
        Transazione transazione(mConnessione);
        mConnessione.esegui(QStringLiteral("insert into prova (id) values (1)"));
    }
    EXPECT_EQ(righe(), QStringLiteral("0"));
    mConnessione.esegui(QStringLiteral("insert into prova (id) values (2)"));
    EXPECT_EQ(righe(), QStringLiteral("1"));
}

TEST_P(Transazioni, aperteAllaChiusuraSonoAnnullate)
{
    Transazione transazione(mConnessione);
    mConnessione.esegui(QStringLiteral("insert into prova (id) values (1)"));
    mConnessione.chiudi();
    EXPECT_EQ(righe(), QStringLiteral("0"));
    EXPECT_EQ(erroreDi([&] { transazione.conferma(); }).sqlstate(), QStringLiteral("25000"));
}

TEST_P(Transazioni, inCorsoNonLasciaApreUnAltra)
{
    Transazione transazione(mConnessione);
    EXPECT_EQ(erroreDi([&] { Transazione altra(mConnessione); }).sqlstate(), QStringLiteral("25001"));
    mConnessione.esegui(QStringLiteral("insert into prova (id) values (1)"));
    transazione.conferma();
    EXPECT_EQ(righe(), QStringLiteral("1"));
}

TEST_P(Transazioni, conLaConfermaFallitaSonoAnnullate)
{
    {
        Transazione transazione(mConnessione);
        mConnessione.esegui(QStringLiteral("insert into prova (id) values (1)"));
        const Guasto guasto(EventoDati::conferma);
        const ErroreDatabase errore = erroreDi([&] { transazione.conferma(); });
        EXPECT_EQ(errore.codiceNativo(), 99);
    }
    EXPECT_EQ(righe(), QStringLiteral("0"));
    EXPECT_TRUE(mConnessione.aperta());
    mConnessione.esegui(QStringLiteral("insert into prova (id) values (2)"));
    EXPECT_EQ(righe(), QStringLiteral("1"));
}

TEST_P(Transazioni, nonComincianoSeLInizioFallisce)
{
    {
        const Guasto guasto(EventoDati::inizio);
        EXPECT_EQ(erroreDi([&] { Transazione transazione(mConnessione); }).codiceNativo(), 99);
    }
    mConnessione.esegui(QStringLiteral("insert into prova (id) values (1)"));
    EXPECT_EQ(righe(), QStringLiteral("1"));
}

TEST_P(Transazioni, unIstruzioneFallitaNonPerdeLeAltre)
{
    Transazione transazione(mConnessione);
    mConnessione.esegui(QStringLiteral("insert into prova (id) values (1)"));
    erroreDi([&] { mConnessione.esegui(QStringLiteral("insert into prova (id) values (1)")); });
    mConnessione.esegui(QStringLiteral("insert into prova (id) values (2)"));
    transazione.conferma();
    EXPECT_EQ(righe(), QStringLiteral("2"));
}

TEST_P(Transazioni, unaLetturaApertaNonFermaLaFine)
{
    riempi(2000);
    for (const bool conferma : {true, false}) {
        Recordset recordset;
        recordset.apri(mConnessione, QStringLiteral("select id, testo from prova order by id"));
        {
            Transazione transazione(mConnessione);
            mConnessione.esegui(QStringLiteral("update prova set n=5 where id=1"));
            if (conferma)
                transazione.conferma();
        }
        recordset.ultimo();
        EXPECT_EQ(recordset.valore(0), QStringLiteral("2000"));
    }
}

/// What the save does: its own connection, the table opened inside the transaction, the number taken on
/// another connection, one insert, one update; while a third connection is busy writing.
TEST_P(Transazioni, delSalvataggioRiesconoMentreUnAltroScrive)
{
    Connessione schermata = mBase.connessione();
    for (int giro = 1; giro <= 20; ++giro) {
        Connessione propria = mBase.connessione();
        Transazione transazione(propria);
        Recordset tabella;
        tabella.apriTabella(propria, QStringLiteral("prova"));
        schermata.esegui(QStringLiteral("update prova set n=%1").arg(giro));
        mBase.esegui(QStringLiteral("insert into prova (id) values (%1)").arg(1000 + giro));
        tabella.aggiungi();
        tabella.imposta(QStringLiteral("id"), QString::number(giro));
        tabella.aggiorna();
        propria.esegui(QStringLiteral("update prova set n=0 where id=%1").arg(giro));
        transazione.conferma();
    }
    EXPECT_EQ(righe(), QStringLiteral("40"));
}

SU_OGNI_BASE(Transazioni);
