#include "search/modelloricerca.h"

#include "data/archivio.h"
#include "support/bancadati.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

#include <QAbstractItemModelTester>
#include <QCursor>
#include <QGuiApplication>
#include <QSignalSpy>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;

namespace {

class ModelloElenco : public testing::TestWithParam<std::string>
{
protected:
    ModelloElenco()
    {
        mTracciaPrima = impostaTraccia([this](EventoDati evento, const QString&) {
            mAperte += evento == EventoDati::apertura ? 1 : evento == EventoDati::chiusura ? -1 : 0;
            if (const QCursor* cursore = QGuiApplication::overrideCursor())
                mCursori += cursore->shape();
        });
    }
    ~ModelloElenco() override { impostaTraccia(std::move(mTracciaPrima)); }

    void apri(const QString& istruzione) { mModello.apri(mBase.accesso(), istruzione); }

    /// Numbers from 1 to quante, with the column that a test needs.
    void apriNumeri(int quante, const QString& colonne = u"i as Num_Ldv"_s)
    {
        apri(u"with recursive n(i) as (select 1 union all select i+1 from n where i<%1) select %2 from n;"_s
                 .arg(quante)
                 .arg(colonne));
    }

    QVariant cella(int riga, int colonna) const { return mModello.index(riga, colonna).data(); }

    BancaDati mBase{GetParam(), Contenuto::vuoto};
    ModelloRicerca mModello;
    Traccia mTracciaPrima;
    int mAperte = 0;
    QList<Qt::CursorShape> mCursori;
};

INSTANTIATE_TEST_SUITE_P(Basi, ModelloElenco, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(ModelloElenco, leggeUnaPaginaAllaVolta)
{
    apriNumeri(600);
    EXPECT_EQ(mModello.rowCount(), 256);
    EXPECT_FALSE(mModello.completo());
    EXPECT_TRUE(mModello.canFetchMore({}));
    mModello.fetchMore({});
    EXPECT_EQ(mModello.rowCount(), 512);
    mModello.fetchMore({});
    EXPECT_EQ(mModello.rowCount(), 600);
    EXPECT_TRUE(mModello.completo());
    EXPECT_FALSE(mModello.canFetchMore({}));
    for (int riga = 0; riga < 600; ++riga)
        ASSERT_EQ(cella(riga, 0), QString::number(riga + 1));
}

TEST_P(ModelloElenco, eUnModelloComeSiDeve)
{
    apriNumeri(600);
    // From here on: it takes what is read within a reset for an error.
    const QAbstractItemModelTester controllo(&mModello,
                                             QAbstractItemModelTester::FailureReportingMode::Fatal);
    while (mModello.canFetchMore({}))
        mModello.fetchMore({});
    EXPECT_EQ(mModello.rowCount(), 600);
}

TEST_P(ModelloElenco, sullUltimaPaginaPienaSaDiAverFinito)
{
    apriNumeri(256);
    EXPECT_EQ(mModello.rowCount(), 256);
    EXPECT_TRUE(mModello.completo());
    EXPECT_FALSE(mModello.canFetchMore({}));
}

TEST_P(ModelloElenco, tieneLaConnessioneSoloFinchELegge)
{
    apriNumeri(300);
    EXPECT_EQ(mAperte, 1);
    mModello.fetchMore({});
    EXPECT_EQ(mAperte, 0);
    apriNumeri(300);
    mModello.chiudi();
    EXPECT_EQ(mAperte, 0);
    EXPECT_EQ(mModello.rowCount(), 256);
    EXPECT_FALSE(mModello.canFetchMore({}));
    EXPECT_FALSE(mModello.completo());
}

TEST_P(ModelloElenco, senzaRigheTieneLeColonne)
{
    apri(u"select 1 as Num_Ldv, 2 as Bord_Inv from (select 1 as x) t where 1=0;"_s);
    EXPECT_EQ(mModello.rowCount(), 0);
    EXPECT_EQ(mModello.columnCount(), 2);
    EXPECT_TRUE(mModello.completo());
    EXPECT_EQ(mModello.headerData(1, Qt::Horizontal), u"Bord_Inv"_s);
}

TEST_P(ModelloElenco, mostraNulliTestiLunghiEOgniCarattere)
{
    const QString lungo(10000, u'x');
    apri(u"select null as Num_Ldv, '%1' as Destinatario, 'Perù 🚚 100%_\\' as Numero_Rif, '0' as Bord_Inv, "
         "'2026-03-01' as Data_Rif;"_s.arg(lungo));
    EXPECT_EQ(cella(0, 0), QString());
    EXPECT_EQ(cella(0, 1), lungo);
    EXPECT_EQ(cella(0, 2), u"Perù 🚚 100%_\\"_s);
    EXPECT_EQ(cella(0, 3), QString());
    EXPECT_EQ(cella(0, 4), u"01/03/2026"_s);
}

TEST_P(ModelloElenco, unIstruzioneErrataLasciaLElencoVuotoConLeSueColonne)
{
    apriNumeri(300);
    EXPECT_THROW(apri(u"select niente from nessuna;"_s), ErroreDatabase);
    EXPECT_EQ(mModello.rowCount(), 0);
    EXPECT_EQ(mModello.columnCount(), 1);
    EXPECT_EQ(mModello.istruzione(), QString());
    EXPECT_EQ(mAperte, 0);
}

TEST_P(ModelloElenco, unDatabaseCheNonCELasciaLElencoVuoto)
{
    apriNumeri(3);
    EXPECT_THROW(mModello.apri(u"DRIVER={nessuno}"_s, u"select 1;"_s), ErroreDatabase);
    EXPECT_EQ(mModello.rowCount(), 0);
}

TEST_P(ModelloElenco, ilPuntatoreAspettaMentreIlDatabaseLavora)
{
    apriNumeri(300);
    EXPECT_THAT(mCursori, testing::SizeIs(testing::Ge(2)));
    EXPECT_THAT(mCursori, testing::Each(Qt::WaitCursor));
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    EXPECT_THROW(apri(u"select niente from nessuna;"_s), ErroreDatabase);
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_P(ModelloElenco, svuotatoEComeNuovo)
{
    apriNumeri(300);
    mModello.svuota();
    EXPECT_EQ(mModello.rowCount(), 0);
    EXPECT_EQ(mModello.columnCount(), 0);
    EXPECT_FALSE(mModello.completo());
    EXPECT_EQ(mAperte, 0);
}

class ModelloSqlite : public ModelloElenco
{};
INSTANTIATE_TEST_SUITE_P(Basi, ModelloSqlite, testing::Values("sqlite"),
                         nomeBase<testing::TestParamInfo<std::string>>);

// This database works a row out when it is read, so the 300th can fail after the first page.
TEST_P(ModelloSqlite, unaLetturaInterrottaTieneLeRigheELoDiceUnaVolta)
{
    const QSignalSpy interruzioni(&mModello, &ModelloRicerca::interrotta);
    apriNumeri(600, u"case i when 300 then abs(-9223372036854775808) else i end as Num_Ldv"_s);
    ASSERT_EQ(mModello.rowCount(), 256);
    ASSERT_EQ(interruzioni.count(), 0);
    mModello.fetchMore({});
    EXPECT_EQ(mModello.rowCount(), 299);
    EXPECT_FALSE(mModello.completo());
    EXPECT_FALSE(mModello.canFetchMore({}));
    EXPECT_EQ(mAperte, 0);
    mModello.fetchMore({});
    ASSERT_EQ(interruzioni.count(), 1);
    EXPECT_EQ(interruzioni.at(0).at(0), u"L'archivio ha rifiutato l'operazione."_s);
    EXPECT_THAT(interruzioni.at(0).at(1).toString().toStdString(), testing::HasSubstr("integer overflow"));
    EXPECT_EQ(cella(298, 0), u"299"_s);
    apriNumeri(3);
    EXPECT_TRUE(mModello.completo());
}

TEST_P(ModelloSqlite, laPrimaPaginaInterrottaSiVede)
{
    const QSignalSpy interruzioni(&mModello, &ModelloRicerca::interrotta);
    apriNumeri(600, u"case i when 3 then abs(-9223372036854775808) else i end as Num_Ldv"_s);
    EXPECT_EQ(mModello.rowCount(), 2);
    EXPECT_EQ(interruzioni.count(), 1);
}

class ModelloMariadb : public ModelloElenco
{};
INSTANTIATE_TEST_SUITE_P(Basi, ModelloMariadb, testing::Values("mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

// The driver has the whole result before its first row: what is lost later is missed by nobody.
TEST_P(ModelloMariadb, unaConnessionePersaTraDuePagineNonPerdeRighe)
{
    const QSignalSpy interruzioni(&mModello, &ModelloRicerca::interrotta);
    apriNumeri(600);
    const QString utente = mBase.stringa().section(u"UID="_s, 1).section(u';', 0, 0);
    const QList<QStringList> processi =
        mBase.righe(u"select id from information_schema.processlist where user='%1';"_s.arg(utente));
    ASSERT_EQ(processi.size(), 1);
    mBase.esegui(u"kill connection %1;"_s.arg(processi[0][0]));
    mModello.fetchMore({});
    mModello.fetchMore({});
    EXPECT_EQ(mModello.rowCount(), 600);
    EXPECT_TRUE(mModello.completo());
    EXPECT_EQ(interruzioni.count(), 0);
}

} // namespace
