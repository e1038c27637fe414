#include "operazioni.h"

#include "data/archivio.h"
#include "database/transazione.h"

#include <thread>

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;

namespace {

/// What goes wrong with the register on a file.
class GuastiSqlite : public ConRegistro
{
protected:
    /// The same file as a program sees it that knows nothing of the extension.
    Accesso senzaEstensione() const
    {
        QString stringa = mBase.stringa();
        stringa.truncate(stringa.indexOf(u";LoadExt"_s));
        return accessoTracciato(stringa);
    }
    QString rifiuto(const QString& istruzione) const
    {
        try {
            mBase.esegui(istruzione);
        } catch (const ErroreDatabase& errore) {
            return errore.testo();
        }
        return u"eseguita"_s;
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, GuastiSqlite, testing::Values("sqlite"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(GuastiSqlite, UnProgrammaSenzaEstensioneSalvaESiVedeCheEUnAltro)
{
    Connessione altri;
    altri.apri(senzaEstensione());
    altri.esegui(u"update giace00f set GINRAV='3' where GINRGI='40'"_s);
    EXPECT_EQ(mBase.leggi(u"select GINRAV from giace00f"_s), u"3"_s);
    EXPECT_EQ(registrati(mBase).last().first(), u"programma senza nome"_s);
}

TEST_P(GuastiSqlite, ChiNonSiFidaDelloSchemaSalvaLoStesso)
{
    for (const Accesso& accesso : {mBase.accesso(), senzaEstensione()}) {
        Connessione altri;
        altri.apri(accesso);
        altri.esegui(u"pragma trusted_schema=off"_s);
        altri.esegui(u"update giace00f set GINRAV=GINRAV+1 where GINRGI='40'"_s);
    }
    EXPECT_EQ(mBase.leggi(u"select GINRAV from giace00f"_s), u"4"_s);
    EXPECT_EQ(registrati(mBase).size(), 2);
}

TEST_P(GuastiSqlite, SenzaUnNomeDelProgrammaValeIlContoDelSistema)
{
    qunsetenv("GIACENZA_UTENTE");
    mBase.esegui(u"update giace00f set GINRAV='3' where GINRGI='40'"_s);
    const QString conto = registrati(mBase).last().first();
    EXPECT_NE(conto, u"programma senza nome"_s);
    EXPECT_FALSE(conto.isEmpty());
}

TEST_P(GuastiSqlite, LaFunzioneDelDatabaseRestaQuellaDiSempreConIValori)
{
    EXPECT_EQ(mBase.leggi(u"select printf('%d%%|%s', 5, 'x')"_s), u"5%|x"_s);
    EXPECT_EQ(mBase.leggi(u"select printf()"_s), addetto);
}

TEST_P(GuastiSqlite, LeRigheNonSiCambianoENonSiTolgono)
{
    faiTutto(mBase);
    mBase.esegui(u"insert into registro_note (GINRGI,GIANGI,autore,testo) values ('40',2026,'Neri','x')"_s);
    const auto prima = registrati(mBase);
    for (const QString& tabella : {u"registro"_s, u"registro_note"_s}) {
        EXPECT_THAT(rifiuto(u"update %1 set testo='y'"_s.arg(tabella)).toStdString(),
                    testing::HasSubstr("non si cambiano"));
        EXPECT_THAT(rifiuto(u"delete from %1"_s.arg(tabella)).toStdString(),
                    testing::HasSubstr("non si cancellano"));
    }
    EXPECT_THAT(
        rifiuto(u"insert or replace into registro (progressivo, fatto) values (1, 'z')"_s).toStdString(),
        testing::HasSubstr("non si sostituiscono"));
    EXPECT_EQ(registrati(mBase), prima);
    EXPECT_EQ(mBase.leggi(u"select testo from registro_note"_s), u"x"_s);
}

TEST_P(GuastiSqlite, UnNumeroNegativoSiRifiutaEISalvataggiPassano)
{
    for (const QString& tabella : {u"registro (progressivo, fatto) values (-1, 'z')"_s,
                                   u"registro (progressivo, fatto) values (0, 'z')"_s,
                                   u"registro_note (progressivo, GINRGI, GIANGI, autore, testo) "
                                   "values (-1, '40', 2026, 'Neri', 'z')"_s})
        for (const QString& come : {u"insert into "_s, u"insert or replace into "_s})
            EXPECT_THAT(rifiuto(come + tabella).toStdString(), testing::HasSubstr("cominciano da 1"));
    faiTutto(mBase);
    EXPECT_EQ(registrati(mBase).size(), 8);
}

/// Such a row came in before the version that refuses it.
TEST(RegistroSqlite, UnaRigaNegativaDiPrimaNonFermaISalvataggi)
{
    const BancaDati base("sqlite");
    riempiDeposito(base);
    preparaRegistro(base.accessoAmministratore(), 2);
    base.esegui(u"insert into registro (progressivo, fatto) values (-1, 'z')"_s);
    EXPECT_THROW(base.esegui(u"update giace00f set GINRAV='3' where GINRGI='40'"_s), ErroreDatabase);
    preparaRegistro(base.accessoAmministratore());
    base.esegui(u"update giace00f set GINRAV='3' where GINRGI='40'"_s);
    EXPECT_EQ(base.leggi(u"select testo from registro where fatto='avvisata'"_s), u"3"_s);
}

TEST_P(GuastiSqlite, ChiScriveInsiemeSiAspettaESiRegistraTutto)
{
    const auto salva = [this](int da) {
        Connessione connessione = mBase.connessione();
        for (int i = da; i < da + 20; ++i)
            connessione.esegui(
                u"insert into giace00f (GIFILI,GINRLV,GIANLV,GINRGI,GIANGI) values ('MI','%1',2026,'%1',2026)"_s
                    .arg(i));
    };
    std::thread uno([&] { salva(1000); });
    std::thread due([&] { salva(2000); });
    uno.join();
    due.join();
    EXPECT_EQ(mBase.leggi(u"select count(*) from registro where fatto='registrata'"_s), u"40"_s);
}

TEST_P(GuastiSqlite, UnSalvataggioConIlRegistroPassaAncheMentreUnAltroLegge)
{
    Connessione lettore = mBase.connessione();
    Recordset aperto;
    aperto.apri(lettore, u"select * from giace00f union all select * from giace00f"_s,
                Recordset::Cursore::soloAvanti);
    registra(mBase);
    EXPECT_EQ(mBase.leggi(u"select LERFGI from letve00f where lenrlv='4711'"_s), u"42"_s);
    EXPECT_EQ(registrati(mBase).size(), 2);
}

} // namespace
