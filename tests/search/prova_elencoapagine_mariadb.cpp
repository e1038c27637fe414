// The two pages as MariaDB is asked for them, and what may happen between them.

#include "search/elencoapagine.h"

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;
using testing::ElementsAre;

class ElencoAPagineMariadb : public ElencoAPagineDiProva
{
protected:
    /// What came to the server from the workstation's user: the lists, and the limits around them.
    QStringList arrivate() const
    {
        const QString utente = mBase.stringa().section(u"UID="_s, 1).section(u';', 0, 0);
        QStringList testi;
        for (const QStringList& riga :
             mBase.righe(u"select argument from mysql.general_log where user_host like '%1[%' and "
                         "command_type in ('Query', 'Execute') and (argument like '%sql_select_limit%' or "
                         "argument like '%letve00f%') order by event_time;"_s.arg(utente)))
            testi += riga[0];
        return testi;
    }
};
INSTANTIATE_TEST_SUITE_P(Basi, ElencoAPagineMariadb, testing::Values("mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(ElencoAPagineMariadb, alServerArrivaIlLimiteSoloAttornoAllaPrimaPagina)
{
    scrivi(1, 300, u"'R'"_s);
    QString testo = istruzione(ModoRicerca::riferimento);
    testo.chop(1); // the driver takes the semicolon off
    mBase.esegui(u"set global log_output='TABLE';\nset global general_log=1;"_s);
    apri(ModoRicerca::riferimento);
    mModello.fetchMore({});
    mBase.esegui(u"set global general_log=0;"_s);
    EXPECT_THAT(arrivate(), ElementsAre(u"SET SESSION sql_select_limit=257"_s, testo,
                                        u"SET SESSION sql_select_limit=default"_s, testo));
}

TEST_P(ElencoAPagineMariadb, leGiacenzeNonHannoOrdineERestanoIntere)
{
    EXPECT_FALSE(inOrdine(ModoRicerca::giacenze));
    EXPECT_FALSE(inOrdine(ModoRicerca::riconsegne));
    scrivi(1, 300, u"'R'"_s);
    mBase.esegui(u"insert into giace00f (GIFILI, GINRLV, GIANLV, GICODI, GINRGI, GIANGI, GIDTGI) "
                 "select lefili, lenrlv, leanlv, lecodi, lenrlv, 2026, '2026-02-05' from letve00f;"_s);
    impostazioni().percorsoDatabase = mBase.stringa();
    frmRicercaGia dialogo;
    dialogo.setTipoRicerca(ModoRicerca::giacenze);
    dialogo.setCodiceCliente(QString::number(cliente));
    dialogo.setAnnoOdata(u"01/01/2026"_s);
    dialogo.show();
    auto* modello = dialogo.findChild<ModelloRicerca*>();
    trova<QPushButton>(dialogo, u"cmdVisualizza"_s)->click();
    mEventi.clear();
    EXPECT_EQ(modello->rowCount(), 256);
    modello->fetchMore({});
    EXPECT_EQ(modello->rowCount(), 300);
    EXPECT_THAT(mEventi, ElementsAre(u"chiusura"_s));
    dialogo.close();
    impostazioni() = {};
}

TEST_P(ElencoAPagineMariadb, traLeDuePagineLeRighePossonoCambiare)
{
    scrivi(101, 600, u"concat('RIF-', i)"_s);
    apri(ModoRicerca::letteraVettura);
    ASSERT_EQ(mModello.index(255, 0).data(), u"356"_s);
    mBase.esegui(u"update letve00f set ledest='CAMBIATO' where lenrlv in ('105', '356', '357');\n"
                 "delete from letve00f where lenrlv in ('110', '400');"_s);
    scrivi(99, 1, u"'PRIMA'"_s);
    leggiTutto();
    QStringList attesi;
    for (int numero = 101; numero <= 356; ++numero)
        attesi += QString::number(numero);
    attesi += u"99"_s;
    for (int numero = 357; numero <= 700; ++numero)
        if (numero != 400)
            attesi += QString::number(numero);
    EXPECT_EQ(colonna(0), attesi);
    EXPECT_EQ(mModello.index(4, 5).data(), u"DESTINATARIO"_s) << "resta com'era quando fu letta";
    EXPECT_EQ(mModello.index(257, 5).data(), u"CAMBIATO"_s);
}

TEST_P(ElencoAPagineMariadb, unGuastoAllaSecondaPaginaTieneLaPrimaELoDiceUnaVolta)
{
    scrivi(1, 600, u"'R'"_s);
    const QSignalSpy interruzioni(&mModello, &ModelloRicerca::interrotta);
    apri(ModoRicerca::riferimento);
    mPrima = [] { throw ErroreDatabase(u"HYT00"_s, 0, u"Tempo scaduto"_s); };
    mEventi.clear();
    mModello.fetchMore({});
    mModello.fetchMore({});
    EXPECT_THAT(mEventi, ElementsAre(u"apertura"_s, istruzione(ModoRicerca::riferimento), u"chiusura"_s));
    EXPECT_EQ(mModello.rowCount(), 256);
    EXPECT_FALSE(mModello.completo());
    EXPECT_FALSE(mModello.canFetchMore({}));
    ASSERT_EQ(interruzioni.count(), 1);
    EXPECT_EQ(interruzioni.at(0).at(0), u"L'archivio non ha risposto in tempo."_s);
    EXPECT_EQ(interruzioni.at(0).at(1), u"Tempo scaduto"_s) << "the driver's words";
    mPrima = {};
    apri(ModoRicerca::riferimento);
    leggiTutto();
    EXPECT_EQ(mModello.rowCount(), 600);
}

TEST_P(ElencoAPagineMariadb, unGuastoAllaPrimaPaginaLasciaLElencoVuotoEChiude)
{
    mPrima = [] { throw ErroreDatabase(u"HYT00"_s, 0, u"Tempo scaduto"_s); };
    EXPECT_THROW(apri(ModoRicerca::riferimento), ErroreDatabase);
    EXPECT_THAT(mEventi, ElementsAre(u"apertura"_s, istruzione(ModoRicerca::riferimento), u"chiusura"_s));
    EXPECT_EQ(mModello.rowCount(), 0);
    EXPECT_FALSE(mModello.canFetchMore({}));
}

TEST_P(ElencoAPagineMariadb, seNonCEPiuAltroIlConteggioLoDice)
{
    scrivi(1, 300, u"'R'"_s);
    impostazioni().percorsoDatabase = mBase.stringa();
    frmRicercaGia dialogo;
    dialogo.setTipoRicerca(ModoRicerca::letteraVettura);
    dialogo.setCodiceCliente(QString::number(cliente));
    dialogo.setFiliale(u"MI"_s);
    dialogo.show();
    const auto* conteggio = trova<QLabel>(dialogo, u"lblRighe"_s);
    EXPECT_EQ(conteggio->text(), u"256 righe lette, continua…"_s);
    mBase.esegui(u"delete from letve00f where cast(lenrlv as unsigned)>256;"_s);
    dialogo.findChild<ModelloRicerca*>()->fetchMore({});
    EXPECT_EQ(conteggio->text(), u"256 righe"_s);
    dialogo.close();
    impostazioni() = {};
}
