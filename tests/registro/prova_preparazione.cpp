#include "operazioni.h"

#include "data/archivio.h"

using namespace giacenza;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

class Preparazione : public testing::TestWithParam<std::string>
{
protected:
    RegistroPreparato prepara(int fino = 0) { return preparaRegistro(mBase.accessoAmministratore(), fino); }
    bool mariadb() const { return GetParam() == "mariadb"; }
    int ultima() const { return ultimaVersioneRegistro(mariadb() ? Dialetto::mariadb : Dialetto::sqlite); }
    /// All that belongs to the register.
    QList<QStringList> parti() const
    {
        return mBase.righe(
            mariadb()
                ? u"select trigger_name from information_schema.triggers where trigger_schema=database() "
                  "union select table_name from information_schema.tables where table_schema=database() "
                  "and table_name like 'registro%' order by 1"_s
                : u"select name from sqlite_master where name like 'registro%' order by 1"_s);
    }

    const BancaDati mBase{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Basi, Preparazione, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(Preparazione, OgniVersioneSiEsegueUnaVoltaSola)
{
    const RegistroPreparato prima = prepara();
    EXPECT_EQ(prima.prima, 0);
    EXPECT_EQ(prima.versione, ultima());
    QStringList eseguite;
    const Traccia vecchia = impostaTraccia([&](EventoDati evento, const QString& testo) {
        if (evento == EventoDati::istruzione && testo.startsWith(u"create "_s) && !testo.contains(u"role"_s))
            eseguite << testo;
    });
    const RegistroPreparato dopo = prepara();
    impostaTraccia(vecchia);
    EXPECT_EQ(dopo.prima, ultima());
    EXPECT_EQ(dopo.versione, ultima());
    EXPECT_THAT(eseguite, IsEmpty());
    EXPECT_EQ(mBase.righe(u"select versione from registro_versione order by versione"_s),
              mariadb() ? (QList<QStringList>{{u"1"_s}, {u"2"_s}})
                        : (QList<QStringList>{{u"1"_s}, {u"2"_s}, {u"3"_s}}));
}

TEST_P(Preparazione, DallaPrimaVersioneAQuellaDOggiRestanoLeRighe)
{
    riempiDeposito(mBase);
    EXPECT_EQ(prepara(1).versione, 1);
    mBase.esegui(u"update giace00f set GINRAV='3' where GINRGI='40'"_s);
    const RegistroPreparato dopo = prepara();
    EXPECT_EQ(dopo.prima, 1);
    EXPECT_EQ(dopo.versione, ultima());
    EXPECT_EQ(mBase.leggi(u"select count(*) from registro where fatto='avvisata'"_s), u"1"_s);
    mBase.esegui(u"insert into registro_note (GINRGI,GIANGI,autore,testo) values ('40',2026,'Neri','x')"_s);
    EXPECT_EQ(parti().size(), mariadb() ? 9 : 19);
}

TEST_P(Preparazione, UnInterruzioneSiRiprende)
{
    int quante = 0;
    const Traccia vecchia = impostaTraccia([&](EventoDati evento, const QString& testo) {
        if (evento == EventoDati::istruzione && testo.startsWith(u"create "_s) &&
            testo.contains(u"registro_giace_cambiata"_s) && ++quante == 1)
            throw ErroreDatabase(u"08S01"_s, 0, u"Il cavo è stato staccato."_s);
    });
    EXPECT_THROW(prepara(), ErroreDatabase);
    impostaTraccia(vecchia);
    const RegistroPreparato ripresa = prepara();
    EXPECT_EQ(ripresa.prima, 0);
    EXPECT_EQ(ripresa.versione, ultima());
    EXPECT_EQ(parti().size(), mariadb() ? 9 : 19);
    riempiDeposito(mBase);
    EXPECT_EQ(mBase.leggi(u"select count(*) from registro where fatto='registrata'"_s), u"1"_s);
}

TEST_P(Preparazione, SuSqliteUnaVersioneInterrottaNonLasciaNiente)
{
    if (mariadb()) { // there each statement is confirmed by itself, and runs again
        EXPECT_EQ(prepara(1).versione, 1);
        return;
    }
    const Traccia vecchia = impostaTraccia([](EventoDati evento, const QString& testo) {
        if (evento == EventoDati::istruzione && testo.contains(u"registro_non_si_toglie"_s))
            throw ErroreDatabase(u"HY000"_s, 0, u"Il disco è pieno."_s);
    });
    EXPECT_THROW(prepara(), ErroreDatabase);
    impostaTraccia(vecchia);
    EXPECT_THAT(parti(), IsEmpty());
}

TEST_P(Preparazione, SenzaLeTabelleDelDepositoNonSiPrepara)
{
    const BancaDati vuota{GetParam(), Contenuto::vuoto};
    EXPECT_THROW(preparaRegistro(vuota.accessoAmministratore()), ErroreDatabase);
}

TEST_P(Preparazione, SiTogliePerIntero)
{
    riempiDeposito(mBase);
    prepara();
    for (const QStringList& riga : parti())
        if (riga[0].startsWith(u"registro_giace"_s) || riga[0].startsWith(u"registro_letve"_s))
            mBase.esegui(u"drop trigger "_s + riga[0]);
    for (const QString& tabella : {u"registro_note"_s, u"registro"_s, u"registro_versione"_s})
        mBase.esegui(u"drop table "_s + tabella);
    EXPECT_THAT(parti(), IsEmpty());
    faiTutto(mBase);
    EXPECT_EQ(prepara().versione, ultima());
}

/// The rights on a server.
class PrivilegiRegistro : public ConRegistro
{
protected:
    int rifiuto(const QString& istruzione) const
    {
        Connessione connessione = mBase.connessione();
        try {
            connessione.esegui(istruzione);
        } catch (const ErroreDatabase& errore) {
            return errore.codiceNativo();
        }
        return 0;
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, PrivilegiRegistro, testing::Values("mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(PrivilegiRegistro, LaPostazioneLeggeENonScrive)
{
    constexpr int tabellaNegata = 1142;
    constexpr int colonnaNegata = 1143;
    EXPECT_EQ(rifiuto(u"select * from registro"_s), 0);
    EXPECT_EQ(rifiuto(u"insert into registro (fatto) values ('chiusa')"_s), tabellaNegata);
    EXPECT_EQ(rifiuto(u"update registro set testo='x'"_s), tabellaNegata);
    EXPECT_EQ(rifiuto(u"delete from registro"_s), tabellaNegata);
    EXPECT_EQ(rifiuto(u"truncate table registro"_s), tabellaNegata);
    EXPECT_EQ(rifiuto(u"drop trigger registro_giace_nuova"_s), tabellaNegata);
    EXPECT_EQ(
        rifiuto(u"insert into registro_note (GINRGI,GIANGI,autore,testo) values ('40',2026,'Neri','x')"_s),
        0);
    EXPECT_EQ(rifiuto(u"insert into registro_note (GINRGI,GIANGI,autore,testo,utente) "
                      "values ('40',2026,'Neri','x','altri')"_s),
              colonnaNegata);
    EXPECT_EQ(rifiuto(u"update registro_note set testo='y'"_s), tabellaNegata);
    EXPECT_EQ(rifiuto(u"delete from registro_note"_s), tabellaNegata);
    EXPECT_EQ(rifiuto(u"insert into registro_versione (versione) values (9)"_s), tabellaNegata);
    EXPECT_THAT(mBase.leggi(u"select utente from registro_note"_s)->toStdString(),
                testing::StartsWith("prova_"));
}

TEST_P(PrivilegiRegistro, UnAmministratoreConMenoDirittiDiceCheCosaMancaEIlRegistroFunziona)
{
    const BancaDati base{"mariadb"};
    riempiDeposito(base);
    const QString nome = *base.leggi(u"select database()"_s);
    const QString conto = nome + u"_a"_s;
    base.esegui(u"create user '%1'@'127.0.0.1' identified by 'a'"_s.arg(conto));
    base.esegui(u"grant all on `%1`.* to '%2'@'127.0.0.1'"_s.arg(nome, conto));
    const auto via = qScopeGuard([&] { base.esegui(u"drop user '%1'@'127.0.0.1'"_s.arg(conto)); });
    QString stringa = base.stringa();
    stringa.replace(u"UID=%1;PWD=%1"_s.arg(nome), u"UID=%1;PWD=a"_s.arg(conto));
    const RegistroPreparato registro = preparaRegistro(accessoTracciato(stringa));
    EXPECT_THAT(registro.possonoCambiarlo, IsEmpty()) << "who prepares it is not told to take his own rights";
    EXPECT_EQ(registro.versione, 2);
    EXPECT_EQ(registro.definitore, u"current_user"_s);
    EXPECT_THAT(registro.conti, IsEmpty());
    faiTutto(base);
    EXPECT_EQ(base.leggi(u"select count(*) from registro where fatto='registrata'"_s), u"1"_s);
    // Who may gives the rest, and takes the triggers over: their owner may go.
    const RegistroPreparato poi = preparaRegistro(base.accessoAmministratore());
    EXPECT_EQ(poi.definitore, u"registro_giacenza"_s);
    EXPECT_THAT(poi.daConcedere, IsEmpty());
    EXPECT_THAT(poi.conti, ElementsAre(u"'%1'@'127.0.0.1'"_s.arg(nome)));
    EXPECT_THAT(poi.possonoCambiarlo, ElementsAre(u"'%1'@'127.0.0.1'"_s.arg(conto)));
    EXPECT_EQ(base.righe(u"select distinct definer from information_schema.triggers "
                         "where trigger_schema=database()"_s),
              (QList<QStringList>{{u"registro_giacenza@"_s}}));
}

TEST_P(PrivilegiRegistro, ChiHaDirittiSullaTabellaLoLeggeEChiSullaBaseSiNomina)
{
    const BancaDati base{"mariadb"};
    const QString nome = *base.leggi(u"select database()"_s);
    const QString tabella = u"'%1_t'@'127.0.0.1'"_s.arg(nome);
    const QString intera = u"'%1_i'@'127.0.0.1'"_s.arg(nome);
    base.esegui(u"create user %1, %2"_s.arg(tabella, intera));
    const auto via = qScopeGuard([&] { base.esegui(u"drop user %1, %2"_s.arg(tabella, intera)); });
    base.esegui(u"grant select, insert, update on `%1`.giace00f to %2"_s.arg(nome, tabella));
    // As an administrator writes it who knows that "_" stands for any character.
    base.esegui(u"grant select, insert, update, delete on `%1`.* to %2"_s.arg(
        QString(nome).replace(u'_', u"\\_"_s), intera));
    const RegistroPreparato registro = preparaRegistro(base.accessoAmministratore());
    EXPECT_THAT(registro.conti, ElementsAre(u"'%1'@'127.0.0.1'"_s.arg(nome), tabella));
    EXPECT_THAT(registro.possonoCambiarlo, ElementsAre(intera));
    EXPECT_EQ(base.leggi(u"select count(*) from information_schema.table_privileges where grantee=\"%1\" and "
                         "table_name='registro' and privilege_type='SELECT'"_s.arg(tabella)),
              u"1"_s);
}

} // namespace
