#include "database/transazione.h"

#include "data/archivio.h"
#include "database/basi.h"

using namespace Qt::StringLiterals;

using namespace giacenza;
using namespace giacenza::prove;

class Transazioni : public Basi
{
protected:
    Transazioni() { creaTabella(); }

    QString righe() const { return *mBase.leggi(u"select count(*) from prova"_s); }

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
                  throw ErroreDatabase(u"HY000"_s, 99, u"guasto di prova"_s, testo);
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
        mConnessione.esegui(u"insert into prova (id) values (1)"_s);
        EXPECT_EQ(righe(), u"0"_s);
        transazione.conferma();
        EXPECT_EQ(righe(), u"1"_s);
    }
    EXPECT_EQ(righe(), u"1"_s);
    mConnessione.esegui(u"insert into prova (id) values (2)"_s);
    EXPECT_EQ(righe(), u"2"_s);
}

TEST_P(Transazioni, abbandonateNonLascianoTraccia)
{
    {
        Transazione transazione(mConnessione);
        mConnessione.esegui(u"insert into prova (id) values (1)"_s);
    }
    EXPECT_EQ(righe(), u"0"_s);
    mConnessione.esegui(u"insert into prova (id) values (2)"_s);
    EXPECT_EQ(righe(), u"1"_s);
}

TEST_P(Transazioni, aperteAllaChiusuraSonoAnnullate)
{
    Transazione transazione(mConnessione);
    mConnessione.esegui(u"insert into prova (id) values (1)"_s);
    mConnessione.chiudi();
    EXPECT_EQ(righe(), u"0"_s);
    EXPECT_EQ(erroreDi([&] { transazione.conferma(); }).sqlstate(), u"25000"_s);
}

TEST_P(Transazioni, inCorsoNonLasciaApreUnAltra)
{
    Transazione transazione(mConnessione);
    EXPECT_EQ(erroreDi([&] { Transazione altra(mConnessione); }).sqlstate(), u"25001"_s);
    mConnessione.esegui(u"insert into prova (id) values (1)"_s);
    transazione.conferma();
    EXPECT_EQ(righe(), u"1"_s);
}

TEST_P(Transazioni, conLaConfermaFallitaSonoAnnullate)
{
    {
        Transazione transazione(mConnessione);
        mConnessione.esegui(u"insert into prova (id) values (1)"_s);
        const Guasto guasto(EventoDati::conferma);
        const ErroreDatabase errore = erroreDi([&] { transazione.conferma(); });
        EXPECT_EQ(errore.codiceNativo(), 99);
    }
    EXPECT_EQ(righe(), u"0"_s);
    EXPECT_TRUE(mConnessione.aperta());
    mConnessione.esegui(u"insert into prova (id) values (2)"_s);
    EXPECT_EQ(righe(), u"1"_s);
}

TEST_P(Transazioni, nonComincianoSeLInizioFallisce)
{
    {
        const Guasto guasto(EventoDati::inizio);
        EXPECT_EQ(erroreDi([&] { Transazione transazione(mConnessione); }).codiceNativo(), 99);
    }
    mConnessione.esegui(u"insert into prova (id) values (1)"_s);
    EXPECT_EQ(righe(), u"1"_s);
}

TEST_P(Transazioni, unIstruzioneFallitaNonPerdeLeAltre)
{
    Transazione transazione(mConnessione);
    mConnessione.esegui(u"insert into prova (id) values (1)"_s);
    erroreDi([&] { mConnessione.esegui(u"insert into prova (id) values (1)"_s); });
    mConnessione.esegui(u"insert into prova (id) values (2)"_s);
    transazione.conferma();
    EXPECT_EQ(righe(), u"2"_s);
}

TEST_P(Transazioni, unaLetturaApertaNonFermaLaFine)
{
    riempi(2000);
    for (const bool conferma : {true, false}) {
        Recordset recordset;
        recordset.apri(mConnessione, u"select id, testo from prova order by id"_s);
        {
            Transazione transazione(mConnessione);
            mConnessione.esegui(u"update prova set n=5 where id=1"_s);
            if (conferma)
                transazione.conferma();
        }
        EXPECT_EQ(ultima(recordset), u"2000"_s);
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
        NuovaRiga riga(propria, u"prova"_s);
        schermata.esegui(u"update prova set n=%1"_s.arg(giro));
        mBase.esegui(u"insert into prova (id) values (%1)"_s.arg(1000 + giro));
        riga.imposta(u"id"_s, QString::number(giro));
        riga.aggiungi();
        propria.esegui(u"update prova set n=0 where id=%1"_s.arg(giro));
        transazione.conferma();
    }
    EXPECT_EQ(righe(), u"40"_s);
}

SU_OGNI_BASE(Transazioni);
