#include "basipiene.h"
#include "catalogo.h"

#include "data/numerazione.h"
#include "database/nuovariga.h"
#include "database/transazione.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

#include <QFile>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;
using testing::UnorderedElementsAreArray;

namespace {

/// Codes of the server's own refusals, so that no other error passes for one.
constexpr int tabellaNegata = 1142;
constexpr int colonnaNegata = 1143;
constexpr int databaseNegato = 1044;
constexpr int privilegioNegato = 1227;

/// The user of the workstations, on a server.
class Privilegi : public testing::Test
{
protected:
    const BancaDati mBase{"mariadb"};
    Connessione mConnessione = mBase.connessione();

    /// The number of the server's refusal; 0 when the user may.
    int rifiuto(const QString& istruzione)
    {
        try {
            mConnessione.esegui(istruzione);
        } catch (const ErroreDatabase& errore) {
            EXPECT_THAT(errore.sqlstate(), testing::AnyOf(u"42000"_s, u"HY000"_s)) << errore.what();
            return errore.codiceNativo();
        }
        return 0;
    }

    QStringList colonne(const QString& tabella) const
    {
        QStringList nomi;
        const auto righe = mBase.righe(
            u"select column_name from information_schema.columns where table_schema=database() and "
            "table_name='%1'"_s.arg(tabella));
        for (const QStringList& riga : righe)
            nomi << riga.first();
        return nomi;
    }

    /// The columns of a table that the user may change.
    QStringList modificabili(const QString& tabella)
    {
        QStringList consentite;
        for (const QString& colonna : colonne(tabella)) {
            const int codice = rifiuto(u"update %1 set `%2`=null where 1=0"_s.arg(tabella, colonna));
            if (codice == 0)
                consentite << colonna;
            else
                EXPECT_THAT(codice, testing::AnyOf(colonnaNegata, tabellaNegata)) << colonna.toStdString();
        }
        return consentite;
    }

    /// The columns of a table that the user may fill in a new row.
    QStringList inseribili(const QString& tabella)
    {
        QStringList consentite;
        for (const QString& colonna : colonne(tabella)) {
            // ignore: a column without a default that is not named is no refusal here.
            const int codice = rifiuto(
                u"insert ignore into %1 (`%2`) select `%2` from %1 where 1=0"_s.arg(tabella, colonna));
            if (codice == 0)
                consentite << colonna;
            else
                EXPECT_THAT(codice, testing::AnyOf(colonnaNegata, tabellaNegata)) << colonna.toStdString();
        }
        return consentite;
    }

    /// The account and its machine, as the server knows them.
    QString chiSono()
    {
        Recordset riga;
        riga.apri(mConnessione, u"select user()"_s);
        return riga.valore(0).value_or(QString());
    }

    const QStringList mTabelle{u"clien"_s,    u"codicizona"_s, u"ekelvorqzt_tabge00f"_s,
                               u"filiali"_s,  u"forni"_s,      u"giace00f"_s,
                               u"letve00f"_s, u"porto"_s,      u"tabfatturazione"_s};
};

TEST_F(Privilegi, bastanoAOgniIstruzioneDelComponente)
{
    Connessione amministratore = mBase.amministratore();
    dimostrazione::riempi(amministratore, {.spedizioni = 500, .oggi = oggiDimostrativo()});
    for (const VoceCatalogo& voce : catalogo(mBase)) {
        const bool lettura = voce.testo.startsWith(u"select"_s, Qt::CaseInsensitive);
        try {
            Recordset righe;
            if (lettura)
                righe.apri(mConnessione, voce.testo, Recordset::Cursore::chiave, voce.parametri);
            else
                EXPECT_GE(mConnessione.esegui(voce.testo), 0);
        } catch (const ErroreDatabase& errore) {
            ADD_FAILURE() << voce.nome.toStdString() << ": " << errore.what();
        }
    }
    EXPECT_EQ(ProssimoNumGiacenza(mConnessione), u"90001"_s);
}

TEST_F(Privilegi, bastanoAggiungereUnaGiacenzaEUnaSpedizione)
{
    Transazione transazione(mConnessione);
    NuovaRiga giacenza(mConnessione, u"giace00f"_s);
    const QStringList chiavi{u"GIFILI"_s, u"GINRLV"_s, u"GINRGI"_s};
    for (const QString& colonna : chiavi)
        giacenza.imposta(colonna, u"1"_s);
    giacenza.imposta(u"GIANLV"_s, u"2026"_s);
    giacenza.imposta(u"GIANGI"_s, u"2026"_s);
    giacenza.aggiungi();
    EXPECT_EQ(rifiuto(u"insert into letve00f (lefili, lenrlv, leanlv, ledtlv, lecodi, lerico) "
                      "values ('01', '1', 2026, '2026-01-02', 1001, 'R')"_s),
              0);
    transazione.conferma();
    EXPECT_EQ(mBase.leggi(u"select count(*) from giace00f"_s), u"1"_s);
    EXPECT_EQ(mBase.leggi(u"select count(*) from letve00f"_s), u"1"_s);
}

TEST_F(Privilegi, nonCancellanoNeCambianoLeTabelle)
{
    for (const QString& tabella : mTabelle) {
        EXPECT_EQ(rifiuto(u"delete from "_s + tabella), tabellaNegata) << tabella.toStdString();
        EXPECT_EQ(rifiuto(u"drop table "_s + tabella), tabellaNegata) << tabella.toStdString();
        EXPECT_EQ(rifiuto(u"truncate table "_s + tabella), tabellaNegata) << tabella.toStdString();
        EXPECT_EQ(rifiuto(u"alter table %1 add column spia integer"_s.arg(tabella)), tabellaNegata)
            << tabella.toStdString();
        EXPECT_EQ(rifiuto(u"create index spia on %1 (Codice)"_s.arg(tabella)), tabellaNegata)
            << tabella.toStdString();
    }
    EXPECT_EQ(rifiuto(u"create table spia (a integer)"_s), tabellaNegata);
    EXPECT_EQ(rifiuto(u"create database spia"_s), databaseNegato);
}

TEST_F(Privilegi, nonVannoFuoriDalDatabase)
{
    EXPECT_EQ(rifiuto(u"select * from mysql.global_priv"_s), tabellaNegata);
    EXPECT_EQ(rifiuto(u"create user spia@localhost"_s), privilegioNegato);
    EXPECT_EQ(rifiuto(u"set global max_connections=1"_s), privilegioNegato);
}

TEST_F(Privilegi, cambianoSoloLeColonneDelleIstruzioni)
{
    EXPECT_THAT(modificabili(u"letve00f"_s),
                UnorderedElementsAreArray({u"LERFGI"_s, u"LEANGI"_s, u"LEDTCO"_s}));
    EXPECT_THAT(modificabili(u"giace00f"_s),
                UnorderedElementsAreArray({u"GINRAV"_s, u"GIDTAV"_s, u"GIDES1"_s, u"GIDTBF"_s, u"GIGGSO"_s,
                                           u"GIIMGI"_s, u"FissoGiacenza"_s}));
    EXPECT_THAT(modificabili(u"ekelvorqzt_tabge00f"_s), UnorderedElementsAreArray({u"UltimoNumGiacenza"_s}));
    const QStringList soloLette{u"clien"_s, u"codicizona"_s, u"filiali"_s,
                                u"forni"_s, u"porto"_s,      u"tabfatturazione"_s};
    for (const QString& tabella : soloLette)
        EXPECT_THAT(modificabili(tabella), testing::IsEmpty()) << tabella.toStdString();
}

TEST_F(Privilegi, aggiungonoSoloLeColonneCheSiRiempiono)
{
    EXPECT_THAT(inseribili(u"giace00f"_s),
                UnorderedElementsAreArray({u"GIFILI"_s, u"GINRLV"_s, u"GIANLV"_s, u"GICODI"_s, u"GIFIGI"_s,
                                           u"GINRGI"_s, u"GIANGI"_s, u"GIDTGI"_s, u"GIGGSO"_s, u"GIDTAV"_s,
                                           u"GIDES1"_s, u"GIDTBF"_s, u"GIIMGI"_s, u"GIVNRG"_s, u"GIVDTG"_s}));
    EXPECT_THAT(inseribili(u"letve00f"_s),
                UnorderedElementsAreArray({u"lefili"_s, u"lenrlv"_s, u"leanlv"_s, u"ledtlv"_s, u"lecodi"_s,
                                           u"lecmpe"_s, u"ledest"_s, u"leindd"_s, u"lecapd"_s, u"lelocd"_s,
                                           u"leprod"_s, u"lerico"_s, u"lecdve"_s, u"lelin1"_s, u"lenatu"_s,
                                           u"lerife"_s, u"lerifd"_s, u"leport"_s, u"lecoll"_s, u"lepeso"_s,
                                           u"levolu"_s, u"lecnss"_s, u"leanpc"_s, u"lenote"_s, u"levame"_s,
                                           u"LERFGI"_s, u"LEANGI"_s}));
    for (const QString& tabella : mTabelle) {
        if (tabella != u"giace00f"_s && tabella != u"letve00f"_s) {
            EXPECT_THAT(inseribili(tabella), testing::IsEmpty()) << tabella.toStdString();
        }
    }
}

TEST_F(Privilegi, nonScrivonoLaFatturaNeRiscrivonoUnaRiga)
{
    const QString giacenza =
        u"(GIFILI, GINRLV, GIANLV, GINRGI, GIANGI) values ('01', '1', 2026, '1', 2026)"_s;
    ASSERT_EQ(rifiuto(u"insert into giace00f "_s + giacenza), 0);
    EXPECT_EQ(rifiuto(u"insert into giace00f (GIFILI, GINRLV, GIANLV, GINRGI, GIANGI, GINRFA) "
                      "values ('01', '2', 2026, '2', 2026, '77')"_s),
              colonnaNegata);
    EXPECT_EQ(rifiuto(u"insert into giace00f %1 on duplicate key update GINRFA='77'"_s.arg(giacenza)),
              colonnaNegata);
    EXPECT_EQ(rifiuto(u"replace into giace00f "_s + giacenza), tabellaNegata);
}

TEST_F(Privilegi, nonFermanoLeTabelleNeLeggonoFile)
{
    EXPECT_EQ(rifiuto(u"lock tables giace00f write"_s), databaseNegato);
    EXPECT_EQ(rifiuto(u"flush tables with read lock"_s), privilegioNegato);
    EXPECT_EQ(rifiuto(u"create temporary table spia (a integer)"_s), databaseNegato);
    EXPECT_EQ(rifiuto(u"select * from giace00f into outfile '/tmp/spia'"_s), privilegioNegato);
    EXPECT_EQ(rifiuto(u"create procedure spia() select 1"_s), databaseNegato);
    EXPECT_EQ(rifiuto(u"create trigger spia before insert on giace00f for each row set @a=1"_s),
              tabellaNegata);
    EXPECT_EQ(rifiuto(u"set sql_log_bin=0"_s), privilegioNegato);
}

/// What docs/security.md says that they can do all the same.
TEST_F(Privilegi, possonoAncora)
{
    mBase.esegui(u"insert into ekelvorqzt_tabge00f (UltimoNumGiacenza) values (90000);"_s);
    mBase.esegui(u"insert into giace00f (GIFILI, GINRLV, GIANLV, GINRGI, GIANGI, GIDTBF, GIIMGI) values "
                 "('01', '1', 2026, '1', 2026, '2026-03-01', 50);"_s);
    EXPECT_EQ(rifiuto(u"update giace00f set GIDTBF=null, GIIMGI=0"_s), 0);
    EXPECT_EQ(mBase.leggi(u"select count(*) from giace00f where GIDTBF is null and GIIMGI=0"_s), u"1"_s);
    EXPECT_EQ(rifiuto(u"update letve00f set LERFGI=null, LEANGI=null"_s), 0);
    EXPECT_EQ(rifiuto(u"update ekelvorqzt_tabge00f set UltimoNumGiacenza=0"_s), 0);
    EXPECT_EQ(rifiuto(u"select * from clien for update"_s), 0);
    EXPECT_EQ(rifiuto(u"set session max_statement_time=0"_s), 0);
    EXPECT_EQ(rifiuto(u"select get_lock('giacenze', 0)"_s), 0);
}

/// The trail of docs/security.md, made with its own lines.
TEST_F(Privilegi, ilRegistroDelleModificheScriveDaSeENonSiTocca)
{
    QFile documento(QStringLiteral(GIACENZA_SORGENTI "/../docs/security.md"));
    ASSERT_TRUE(documento.open(QIODevice::ReadOnly));
    const QString testo = QString::fromUtf8(documento.readAll());
    const QString righe = testo.section(u"```sql\n"_s, 1, 1).section(u"```"_s, 0, 0);
    ASSERT_FALSE(righe.isEmpty());
    mBase.esegui(righe);

    ASSERT_EQ(rifiuto(u"insert into giace00f (GIFILI, GINRLV, GIANLV, GINRGI, GIANGI, GIDTBF, GIIMGI) values "
                      "('01', '1', 2026, '7', 2026, '2026-03-01', 50)"_s),
              0);
    ASSERT_EQ(rifiuto(u"update giace00f set GIDTBF=null, GIIMGI=0"_s), 0);
    const QString utente = chiSono();
    EXPECT_EQ(mBase.righe(u"select GINRGI, GIANGI, GIDTBF, GIIMGI, chi from giace_storia"_s),
              (QList<QStringList>{{u"7"_s, u"2026"_s, u"2026-03-01"_s, u"50.00"_s, utente}}));
    EXPECT_EQ(rifiuto(u"delete from giace_storia"_s), tabellaNegata);
    EXPECT_EQ(rifiuto(u"update giace_storia set chi='nessuno'"_s), tabellaNegata);
    EXPECT_EQ(rifiuto(u"select * from giace_storia"_s), tabellaNegata);
    EXPECT_EQ(rifiuto(u"drop trigger giace_storia"_s), tabellaNegata);
}

} // namespace
