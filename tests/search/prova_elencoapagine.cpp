// The lists in an order, whose first page MariaDB gives alone: the same rows come as from the whole
// statement.

#include "base/impostazioni.h"
#include "data/archivio.h"
#include "search/bancoricerca.h"
#include "search/modelloricerca.h"
#include "support/stampa.h"

#include <algorithm>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int cliente = 4000;

class ElencoAPagine : public testing::TestWithParam<std::string>
{
protected:
    ElencoAPagine()
    {
        mTracciaPrima = impostaTraccia([this](EventoDati evento, const QString& testo) {
            mEventi += evento == EventoDati::apertura     ? u"apertura"_s
                       : evento == EventoDati::istruzione ? testo
                                                          : u"chiusura"_s;
            if (evento == EventoDati::istruzione && mPrima)
                mPrima();
        });
    }
    ~ElencoAPagine() override { impostaTraccia(std::move(mTracciaPrima)); }

    bool mariadb() const { return GetParam() == "mariadb"; }

    /// Waybills from number da on; riferimento: an expression of the number i.
    void scrivi(int da, int quante, const QString& riferimento) const
    {
        mBase.esegui(u"insert into letve00f (lefili, lenrlv, leanlv, ledtlv, lecodi, ledest, lerife) "
                     "with recursive n(i) as (select %1 union all select i+1 from n where i<%1+%2-1) "
                     "select 'MI', i, 2026, '2026-02-03', %3, 'DESTINATARIO', %4 from n;"_s.arg(da)
                         .arg(quante)
                         .arg(cliente)
                         .arg(riferimento));
    }

    static QString istruzione(ModoRicerca modo)
    {
        DatiRicerca dati;
        dati.cliente = QString::number(cliente);
        dati.filiale = u"MI"_s;
        return istruzioni::ricercaApertura(modo, dati);
    }

    void apri(ModoRicerca modo)
    {
        mEventi.clear();
        mModello.apri(mBase.accesso(), istruzione(modo), postiScelta(modo));
    }

    void leggiTutto()
    {
        while (mModello.canFetchMore({}))
            mModello.fetchMore({});
    }

    QStringList colonna(int quale) const
    {
        QStringList valori;
        for (int riga = 0; riga < mModello.rowCount(); ++riga)
            valori += mModello.index(riga, quale).data().toString();
        return valori;
    }

    /// The numbers of the waybills as the whole statement gives them.
    QStringList intero(ModoRicerca modo) const
    {
        QStringList numeri;
        for (const QStringList& riga : mBase.righe(istruzione(modo)))
            numeri += riga[0];
        return numeri;
    }

    BancaDati mBase{GetParam()};
    ModelloRicerca mModello;
    QStringList mEventi;
    std::function<void()> mPrima; // before each statement; may throw
    Traccia mTracciaPrima;
};
INSTANTIATE_TEST_SUITE_P(Basi, ElencoAPagine, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

QStringList ordinati(QStringList valori)
{
    std::sort(valori.begin(), valori.end());
    return valori;
}

} // namespace

TEST_P(ElencoAPagine, leRigheSonoQuelleDellIstruzioneInteraENelloStessoOrdine)
{
    scrivi(1, 1000, u"10000-i"_s);
    for (const ModoRicerca modo : {ModoRicerca::riferimento, ModoRicerca::letteraVettura}) {
        apri(modo);
        EXPECT_EQ(mModello.rowCount(), 256);
        EXPECT_FALSE(mModello.completo());
        leggiTutto();
        EXPECT_TRUE(mModello.completo());
        EXPECT_EQ(colonna(0), intero(modo));
    }
}

TEST_P(ElencoAPagine, conMolteRigheDiOrdineUgualeNessunaMancaENessunaTornaDueVolte)
{
    scrivi(1, 200, u"'A'"_s);
    scrivi(201, 1000, u"'B'"_s);
    scrivi(1201, 1000, u"'B'"_s);
    scrivi(2201, 200, u"'C'"_s);
    apri(ModoRicerca::riferimento);
    leggiTutto();
    EXPECT_EQ(ordinati(colonna(0)), ordinati(intero(ModoRicerca::riferimento)));
    const QStringList riferimenti = colonna(2);
    EXPECT_TRUE(std::is_sorted(riferimenti.begin(), riferimenti.end()));
    EXPECT_EQ(riferimenti.size(), 2400);
}

TEST_P(ElencoAPagine, leIstruzioniSonoInteraENellOrdineELaConnessioneNonResta)
{
    scrivi(1, 300, u"'R'"_s);
    const QString testo = istruzione(ModoRicerca::letteraVettura);
    apri(ModoRicerca::letteraVettura);
    const QStringList unaPagina{u"apertura"_s, testo};
    EXPECT_EQ(mEventi, mariadb() ? unaPagina + QStringList{u"chiusura"_s} : unaPagina);
    mEventi.clear();
    mModello.fetchMore({});
    EXPECT_EQ(mEventi, mariadb() ? unaPagina + QStringList{u"chiusura"_s} : QStringList{u"chiusura"_s});
    EXPECT_TRUE(mModello.completo());
    EXPECT_EQ(mModello.rowCount(), 300);
}

TEST_P(ElencoAPagine, oltreLaSecondaPaginaLIstruzioneNonSiRipete)
{
    scrivi(1, 1000, u"'R'"_s);
    apri(ModoRicerca::riferimento);
    mModello.fetchMore({});
    mEventi.clear();
    leggiTutto();
    EXPECT_THAT(mEventi, ElementsAre(u"chiusura"_s));
    EXPECT_EQ(mModello.rowCount(), 1000);
}

TEST_P(ElencoAPagine, unaPaginaEsattaEFinitaEUnaRigaInPiuNo)
{
    scrivi(1, 256, u"'R'"_s);
    apri(ModoRicerca::letteraVettura);
    EXPECT_TRUE(mModello.completo());
    EXPECT_FALSE(mModello.canFetchMore({}));
    EXPECT_THAT(mEventi, ElementsAre(u"apertura"_s, istruzione(ModoRicerca::letteraVettura), u"chiusura"_s));
    scrivi(257, 1, u"'R'"_s);
    apri(ModoRicerca::letteraVettura);
    EXPECT_FALSE(mModello.completo());
    EXPECT_EQ(mModello.rowCount(), 256);
    leggiTutto();
    EXPECT_EQ(mModello.rowCount(), 257);
    EXPECT_EQ(mModello.index(256, 0).data(), u"257"_s);
}

TEST_P(ElencoAPagine, chiusoDopoLaPrimaPaginaNonLeggePiu)
{
    scrivi(1, 300, u"'R'"_s);
    apri(ModoRicerca::riferimento);
    mModello.chiudi();
    EXPECT_FALSE(mModello.canFetchMore({}));
    EXPECT_EQ(mModello.rowCount(), 256);
    EXPECT_FALSE(mModello.completo());
}

class ElencoAPagineMariadb : public ElencoAPagine
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
    EXPECT_EQ(interruzioni.at(0).at(0), u"Tempo scaduto"_s);
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
