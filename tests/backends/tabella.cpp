#include "backends/basi.h"
#include "data/transazione.h"

#include <QElapsedTimer>

using namespace giacenza;
using namespace giacenza::prove;

class Tabella : public Basi
{
protected:
    Tabella() { creaTabella(); }

    Connessione mConnessione = mBase.connessione();
};

TEST_P(Tabella, apertaNonHaRigheEConosceLeColonne)
{
    riempi(3);
    Recordset tabella;
    tabella.apriTabella(mConnessione, QStringLiteral("Prova"));
    EXPECT_TRUE(tabella.aperto());
    EXPECT_TRUE(tabella.bof());
    EXPECT_TRUE(tabella.eof());
    EXPECT_EQ(tabella.colonne(), 6);
    EXPECT_EQ(tabella.nomeColonna(3), QStringLiteral("importo"));
    EXPECT_EQ(erroreDi([&] { tabella.valore(0); }).sqlstate(), QStringLiteral("02000"));
}

TEST_P(Tabella, scriveSoloLeColonneImpostate)
{
    Recordset tabella;
    tabella.apriTabella(mConnessione, QStringLiteral("prova"));
    tabella.aggiungi();
    tabella.imposta(QStringLiteral("ID"), QStringLiteral("1"));
    tabella.imposta(QStringLiteral("testo"), QStringLiteral("prima"));
    tabella.imposta(QStringLiteral("Testo"), QStringLiteral("l'ultima"));
    tabella.aggiorna();
    tabella.aggiungi();
    tabella.imposta(QStringLiteral("id"), QStringLiteral("2"));
    tabella.imposta(QStringLiteral("conto"), std::nullopt);
    tabella.aggiorna();
    const QList<QStringList> attese{
        {QStringLiteral("1"), QStringLiteral("l'ultima"), QStringLiteral("NULL"), QStringLiteral("7")},
        {QStringLiteral("2"), QStringLiteral("NULL"), QStringLiteral("NULL"), QStringLiteral("NULL")}};
    EXPECT_EQ(mBase.righe(QStringLiteral("select id, testo, importo, conto from prova order by id")), attese);
}

TEST_P(Tabella, rifiutaCioCheNonHaSenso)
{
    Recordset tabella;
    tabella.apriTabella(mConnessione, QStringLiteral("prova"));
    EXPECT_EQ(erroreDi([&] { tabella.imposta(QStringLiteral("id"), QStringLiteral("1")); }).sqlstate(),
              QStringLiteral("HY010"));
    EXPECT_EQ(erroreDi([&] { tabella.aggiorna(); }).sqlstate(), QStringLiteral("HY010"));
    tabella.aggiungi();
    EXPECT_EQ(erroreDi([&] { tabella.imposta(QStringLiteral("altro"), QStringLiteral("1")); }).sqlstate(),
              QStringLiteral("42S22"));
    EXPECT_EQ(erroreDi([&] { tabella.aggiorna(); }).sqlstate(), QStringLiteral("HY010"));
    Recordset lettura;
    lettura.apri(mConnessione, QStringLiteral("select * from prova"));
    EXPECT_EQ(erroreDi([&] { lettura.aggiungi(); }).sqlstate(), QStringLiteral("HY010"));
}

TEST_P(Tabella, unInserimentoFallitoSiPuoCorreggere)
{
    mBase.esegui(QStringLiteral("insert into prova (id) values (1)"));
    Recordset tabella;
    tabella.apriTabella(mConnessione, QStringLiteral("prova"));
    tabella.aggiungi();
    tabella.imposta(QStringLiteral("id"), QStringLiteral("1"));
    tabella.imposta(QStringLiteral("n"), QStringLiteral("4"));
    const ErroreDatabase errore = erroreDi([&] { tabella.aggiorna(); });
    EXPECT_EQ(errore.istruzione(), QStringLiteral("insert into prova (id, n) values (?, ?)"));
    tabella.imposta(QStringLiteral("id"), QStringLiteral("2"));
    tabella.aggiorna();
    EXPECT_EQ(mBase.leggi(QStringLiteral("select n from prova where id=2")), QStringLiteral("4"));
}

TEST_P(Tabella, siApreMentreUnAltroTieneIlLucchettoDiScrittura)
{
    Connessione altra = mBase.connessione();
    Transazione scrittura(altra);
    altra.esegui(QStringLiteral("insert into prova (id) values (1)"));
    Recordset tabella;
    QElapsedTimer attesa;
    attesa.start();
    tabella.apriTabella(mConnessione, QStringLiteral("prova"));
    EXPECT_EQ(tabella.colonne(), 6);
    scrittura.conferma();
    tabella.aggiungi();
    tabella.imposta(QStringLiteral("id"), QStringLiteral("2"));
    tabella.aggiorna();
    EXPECT_EQ(mBase.leggi(QStringLiteral("select count(*) from prova")), QStringLiteral("2"));
}

TEST_P(Tabella, apertaNonLeggeRighe)
{
    if (!mariadb()) {
        // A statement that ran would leave a read transaction, and this one could not move the journal.
        riempi(100);
        Transazione transazione(mConnessione);
        Recordset tabella;
        tabella.apriTabella(mConnessione, QStringLiteral("prova"));
        EXPECT_EQ(mBase.righe(QStringLiteral("pragma wal_checkpoint(truncate)")).value(0).value(0),
                  QStringLiteral("0"));
        mBase.esegui(QStringLiteral("update prova set n=3"));
        EXPECT_EQ(mBase.righe(QStringLiteral("pragma wal_checkpoint(truncate)")).value(0).value(0),
                  QStringLiteral("0"));
        return;
    }
    riempi(100);
    const auto lette = [&] {
        Recordset contatore;
        contatore.apri(mConnessione, QStringLiteral("show session status like 'Handler_read_rnd_next'"));
        return contatore.valore(1)->toLongLong();
    };
    const auto conto = [&] {
        const qint64 prima = lette();
        const qint64 dopo = lette();
        Recordset tabella;
        tabella.apriTabella(mConnessione, QStringLiteral("prova"));
        return lette() - dopo - (dopo - prima);
    };
    EXPECT_EQ(conto(), 0);
}

SU_OGNI_BASE(Tabella);
