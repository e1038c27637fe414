#include "basipiene.h"
#include "catalogo.h"

#include "data/numerazione.h"
#include "database/transazione.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

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
    Recordset giacenze;
    giacenze.apriTabella(mConnessione, u"giace00f"_s);
    giacenze.aggiungi();
    const QStringList chiavi{u"GIFILI"_s, u"GINRLV"_s, u"GINRGI"_s};
    for (const QString& colonna : chiavi)
        giacenze.imposta(colonna, u"1"_s);
    giacenze.imposta(u"GIANLV"_s, u"2026"_s);
    giacenze.imposta(u"GIANGI"_s, u"2026"_s);
    giacenze.aggiorna();
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

TEST_F(Privilegi, aggiungonoRigheSoloDoveServe)
{
    QStringList consentite;
    for (const QString& tabella : mTabelle) {
        const int codice = rifiuto(u"insert into %1 select * from %1 where 1=0"_s.arg(tabella));
        if (codice == 0)
            consentite << tabella;
        else
            EXPECT_EQ(codice, tabellaNegata) << tabella.toStdString();
    }
    EXPECT_THAT(consentite, UnorderedElementsAreArray({u"giace00f"_s, u"letve00f"_s}));
}

} // namespace
