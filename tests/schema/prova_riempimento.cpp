#include "basipiene.h"

#include "schema/dati/riempimento.h"
#include "schema/dati/tabelle.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

#include <QCryptographicHash>
#include <QRegularExpression>

#include <stdexcept>

using namespace giacenza;
using namespace giacenza::dimostrazione;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;

namespace {

/// The rows of a table in the order of its key, decimals without the zeros that only one database keeps.
QList<QStringList> righeUguagliate(const BancaDati& base, const Tabella& tabella)
{
    static const QHash<QString, QString> ordine{{u"letve00f"_s, u"leanlv, lenrlv, lefili"_s},
                                                {u"giace00f"_s, u"giangi, ginrgi"_s},
                                                {u"tabfatturazione"_s, u"falcod, facodi, facmpe"_s}};
    static const QRegularExpression zeri(u"\\.?0+$"_s);
    static const QStringList decimali{u"lepeso"_s, u"levolu"_s, u"lecnss"_s,        u"leanpc"_s,
                                      u"levame"_s, u"GIIMGI"_s, u"FissoGiacenza"_s, u"FADFGI"_s,
                                      u"FAFRGI"_s, u"FATGIG"_s, u"FAMIGI"_s};
    QList<QStringList> righe = base.righe(u"select %1 from %2 order by %3"_s.arg(
        tabella.colonne.join(u", "_s), tabella.nome, ordine.value(tabella.nome, u"1"_s)));
    for (const QString& colonna : decimali) {
        const qsizetype i = tabella.colonne.indexOf(colonna);
        for (QStringList& riga : righe) {
            if (i >= 0 && riga.at(i).contains(u'.'))
                riga[i].remove(zeri);
        }
    }
    return righe;
}

/// A fingerprint of each table's rows.
QStringList impronta(const BancaDati& base)
{
    QStringList impronte;
    for (const Tabella* tabella : tutteLeTabelle()) {
        QCryptographicHash hash(QCryptographicHash::Sha256);
        const QList<QStringList> righe = righeUguagliate(base, *tabella);
        for (const QStringList& riga : righe)
            hash.addData((riga.join(u'\x1f') + u'\x1e').toUtf8());
        impronte << u"%1 %2 %3"_s.arg(tabella->nome)
                        .arg(righe.size())
                        .arg(QString::fromLatin1(hash.result().toHex()));
    }
    return impronte;
}

TEST(Impronta, cambiaConUnSoloValore)
{
    const BancaDati base("sqlite");
    Connessione connessione = base.amministratore();
    riempi(connessione, {.spedizioni = 100, .oggi = oggiDimostrativo()});
    const QStringList prima = impronta(base);
    EXPECT_EQ(prima.size(), 9);
    base.esegui(u"update letve00f set lecoll = lecoll + 1 where lenrlv = '7' and leanlv = 2024;"_s);
    const QStringList dopo = impronta(base);
    for (qsizetype i = 0; i < prima.size(); ++i)
        EXPECT_EQ(prima.at(i) == dopo.at(i), !prima.at(i).startsWith(u"letve00f"_s))
            << prima.at(i).toStdString();
}

class Riempimento : public testing::TestWithParam<std::string>
{
protected:
    const Richiesta mRichiesta{.spedizioni = 300, .oggi = oggiDimostrativo()};

    static Richiesta creando(Richiesta richiesta)
    {
        richiesta.crea = true;
        return richiesta;
    }

    static QString rifiuto(const BancaDati& base, const Richiesta& richiesta)
    {
        Connessione connessione = base.amministratore();
        try {
            riempi(connessione, richiesta);
        } catch (const Rifiuto& errore) {
            return errore.testo();
        }
        return u"accettata"_s;
    }
};

TEST_P(Riempimento, laStessaRichiestaDaLeStesseRighe)
{
    const BancaDati altra(GetParam());
    Connessione connessione = altra.amministratore();
    const Richiesta uguale{.spedizioni = spedizioniDimostrative, .oggi = oggiDimostrativo()};
    riempi(connessione, uguale);
    EXPECT_EQ(impronta(altra), impronta(basePiena(GetParam())));
    EXPECT_EQ(impronta(altra), impronta(basePiena("sqlite"))) << "the two databases do not hold the same";
}

TEST_P(Riempimento, creaAncheLeTabelle)
{
    const BancaDati nuova(GetParam(), Contenuto::vuoto);
    Connessione connessione = nuova.amministratore();
    const Riepilogo riepilogo = riempi(connessione, creando(mRichiesta));
    const BancaDati pronta(GetParam());
    Connessione altra = pronta.amministratore();
    riempi(altra, mRichiesta);
    EXPECT_EQ(impronta(nuova), impronta(pronta));
    EXPECT_EQ(riepilogo.spedizioni, 300);
    EXPECT_EQ(QString::number(riepilogo.giacenze), nuova.leggi(u"select count(*) from giace00f"_s));
    EXPECT_EQ(QString::number(riepilogo.clienti), nuova.leggi(u"select count(*) from clien"_s));
}

TEST_P(Riempimento, gliIndiciSonoQuelliDelloSchema)
{
    const BancaDati nuova(GetParam(), Contenuto::vuoto);
    Connessione connessione = nuova.amministratore();
    riempi(connessione, creando(mRichiesta));
    const QString indici =
        GetParam() == "sqlite"
            ? u"select type, name, sql from sqlite_master where name not like 'sqlite_stat%' order by name"_s
            : u"select table_name, index_name, seq_in_index, column_name from information_schema.statistics "
              "where table_schema=database() order by 1, 2, 3"_s;
    EXPECT_EQ(nuova.righe(indici), BancaDati(GetParam()).righe(indici));
}

TEST_P(Riempimento, zeroSpedizioniLascianoUnDepositoPronto)
{
    const BancaDati base(GetParam());
    Connessione connessione = base.amministratore();
    riempi(connessione, {.spedizioni = 0, .oggi = oggiDimostrativo()});
    EXPECT_EQ(base.leggi(u"select count(*) from letve00f"_s), u"0"_s);
    EXPECT_EQ(base.leggi(u"select UltimoNumGiacenza from ekelvorqzt_tabge00f"_s), u"0"_s);
    EXPECT_EQ(base.leggi(u"select count(*) from filiali"_s), u"12"_s);
}

TEST_P(Riempimento, unDatabaseCheHaGiaDatiSiRifiuta)
{
    const BancaDati base(GetParam());
    base.esegui(u"insert into letve00f (lefili, lenrlv, leanlv, ledtlv, lecodi) "
                "values ('01', '1', 2025, '2025-01-02', 1);"_s);
    EXPECT_EQ(
        rifiuto(base, mRichiesta),
        u"La tabella letve00f contiene già dei dati: i dati dimostrativi si aggiungono solo a un database "
        "vuoto."_s);
    EXPECT_EQ(base.leggi(u"select count(*) from filiali"_s), u"0"_s);
    EXPECT_EQ(
        rifiuto(base, creando(mRichiesta)),
        u"La tabella filiali esiste già: senza --crea si riempiono le tabelle che ci sono, se sono vuote."_s);
    EXPECT_EQ(base.leggi(u"select count(*) from letve00f"_s), u"1"_s);
}

TEST_P(Riempimento, senzaTabelleSiRifiuta)
{
    const BancaDati base(GetParam(), Contenuto::vuoto);
    EXPECT_EQ(rifiuto(base, mRichiesta), u"Manca la tabella filiali: con --crea si creano tutte."_s);
}

/// Ends the filling when every row is written and none confirmed.
void interrompi(qsizetype fatte, qsizetype totali)
{
    if (fatte == totali)
        throw std::runtime_error("interrotto");
}

TEST_P(Riempimento, interrottoNonLasciaNulla)
{
    const BancaDati base(GetParam());
    Connessione connessione = base.amministratore();
    EXPECT_THROW(riempi(connessione, mRichiesta, interrompi), std::runtime_error);
    for (const Tabella* tabella : tutteLeTabelle())
        EXPECT_EQ(base.leggi(u"select count(*) from "_s + tabella->nome), u"0"_s);
    EXPECT_NO_THROW(riempi(connessione, mRichiesta)) << "the connection can go on";
}

TEST_P(Riempimento, interrottoMentreCreaNonLasciaTabelle)
{
    const BancaDati base(GetParam(), Contenuto::vuoto);
    Connessione connessione = base.amministratore();
    EXPECT_THROW(riempi(connessione, creando(mRichiesta), interrompi), std::runtime_error);
    EXPECT_EQ(base.leggi(GetParam() == "sqlite" ? u"select count(*) from sqlite_master"_s
                                                : u"select count(*) from information_schema.tables where "
                                                  "table_schema=database()"_s),
              u"0"_s);
    EXPECT_NO_THROW(riempi(connessione, creando(mRichiesta)));
}

TEST_P(Riempimento, raccontaQuantoHaFatto)
{
    const BancaDati base(GetParam());
    Connessione connessione = base.amministratore();
    std::vector<std::pair<qsizetype, qsizetype>> detti;
    const Riepilogo riepilogo =
        riempi(connessione, {.spedizioni = 6000, .oggi = oggiDimostrativo()},
               [&detti](qsizetype fatte, qsizetype totali) { detti.emplace_back(fatte, totali); });
    const qsizetype totali = riepilogo.spedizioni + riepilogo.giacenze;
    EXPECT_THAT(detti, testing::ElementsAre(std::pair(qsizetype{5000}, totali), std::pair(totali, totali)));
}

INSTANTIATE_TEST_SUITE_P(Basi, Riempimento, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST(RiempimentoSqlite, ilFileNuovoHaIlGiornaleWal)
{
    const BancaDati base("sqlite", Contenuto::vuoto);
    Connessione connessione = base.amministratore();
    Recordset().apri(connessione, u"pragma journal_mode=delete"_s);
    riempi(connessione, {.spedizioni = 10, .oggi = oggiDimostrativo(), .crea = true});
    EXPECT_EQ(base.leggi(u"pragma journal_mode"_s), u"wal"_s);
}

} // namespace
