#include "database/basi.h"
#include "database/transazione.h"

#include <QElapsedTimer>

using namespace Qt::StringLiterals;

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
    tabella.apriTabella(mConnessione, u"Prova"_s);
    EXPECT_TRUE(tabella.aperto());
    EXPECT_TRUE(tabella.bof());
    EXPECT_TRUE(tabella.eof());
    EXPECT_EQ(tabella.colonne(), 6);
    EXPECT_EQ(tabella.nomeColonna(3), u"importo"_s);
    EXPECT_EQ(erroreDi([&] { tabella.valore(0); }).sqlstate(), u"02000"_s);
}

TEST_P(Tabella, scriveSoloLeColonneImpostate)
{
    Recordset tabella;
    tabella.apriTabella(mConnessione, u"prova"_s);
    tabella.aggiungi();
    tabella.imposta(u"ID"_s, u"1"_s);
    tabella.imposta(u"testo"_s, u"prima"_s);
    tabella.imposta(u"Testo"_s, u"l'ultima"_s);
    tabella.aggiorna();
    tabella.aggiungi();
    tabella.imposta(u"id"_s, u"2"_s);
    tabella.imposta(u"conto"_s, std::nullopt);
    tabella.aggiorna();
    const QList<QStringList> attese{{u"1"_s, u"l'ultima"_s, u"NULL"_s, u"7"_s},
                                    {u"2"_s, u"NULL"_s, u"NULL"_s, u"NULL"_s}};
    EXPECT_EQ(mBase.righe(u"select id, testo, importo, conto from prova order by id"_s), attese);
}

TEST_P(Tabella, rifiutaCioCheNonHaSenso)
{
    Recordset tabella;
    tabella.apriTabella(mConnessione, u"prova"_s);
    EXPECT_EQ(erroreDi([&] { tabella.imposta(u"id"_s, u"1"_s); }).sqlstate(), u"HY010"_s);
    EXPECT_EQ(erroreDi([&] { tabella.aggiorna(); }).sqlstate(), u"HY010"_s);
    tabella.aggiungi();
    EXPECT_EQ(erroreDi([&] { tabella.imposta(u"altro"_s, u"1"_s); }).sqlstate(), u"42S22"_s);
    EXPECT_EQ(erroreDi([&] { tabella.aggiorna(); }).sqlstate(), u"HY010"_s);
    Recordset lettura;
    lettura.apri(mConnessione, u"select * from prova"_s);
    EXPECT_EQ(erroreDi([&] { lettura.aggiungi(); }).sqlstate(), u"HY010"_s);
}

TEST_P(Tabella, unInserimentoFallitoSiPuoCorreggere)
{
    mBase.esegui(u"insert into prova (id) values (1)"_s);
    Recordset tabella;
    tabella.apriTabella(mConnessione, u"prova"_s);
    tabella.aggiungi();
    tabella.imposta(u"id"_s, u"1"_s);
    tabella.imposta(u"n"_s, u"4"_s);
    const ErroreDatabase errore = erroreDi([&] { tabella.aggiorna(); });
    EXPECT_EQ(errore.istruzione(), u"insert into prova (id, n) values (?, ?)"_s);
    tabella.imposta(u"id"_s, u"2"_s);
    tabella.aggiorna();
    EXPECT_EQ(mBase.leggi(u"select n from prova where id=2"_s), u"4"_s);
}

TEST_P(Tabella, siApreMentreUnAltroTieneIlLucchettoDiScrittura)
{
    Connessione altra = mBase.connessione();
    Transazione scrittura(altra);
    altra.esegui(u"insert into prova (id) values (1)"_s);
    Recordset tabella;
    QElapsedTimer attesa;
    attesa.start();
    tabella.apriTabella(mConnessione, u"prova"_s);
    EXPECT_EQ(tabella.colonne(), 6);
    scrittura.conferma();
    tabella.aggiungi();
    tabella.imposta(u"id"_s, u"2"_s);
    tabella.aggiorna();
    EXPECT_EQ(mBase.leggi(u"select count(*) from prova"_s), u"2"_s);
}

TEST_P(Tabella, apertaNonLeggeRighe)
{
    if (!mariadb()) {
        // A statement that ran would leave a read transaction, and this one could not move the journal.
        riempi(100);
        Transazione transazione(mConnessione);
        Recordset tabella;
        tabella.apriTabella(mConnessione, u"prova"_s);
        EXPECT_EQ(mBase.righe(u"pragma wal_checkpoint(truncate)"_s).value(0).value(0), u"0"_s);
        mBase.esegui(u"update prova set n=3"_s);
        EXPECT_EQ(mBase.righe(u"pragma wal_checkpoint(truncate)"_s).value(0).value(0), u"0"_s);
        return;
    }
    riempi(100);
    const auto lette = [&] {
        Recordset contatore;
        contatore.apri(mConnessione, u"show session status like 'Handler_read_rnd_next'"_s);
        return contatore.valore(1)->toLongLong();
    };
    const auto conto = [&] {
        const qint64 prima = lette();
        const qint64 dopo = lette();
        Recordset tabella;
        tabella.apriTabella(mConnessione, u"prova"_s);
        return lette() - dopo - (dopo - prima);
    };
    EXPECT_EQ(conto(), 0);
}

SU_OGNI_BASE(Tabella);
