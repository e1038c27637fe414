// What reads the archives after the workstations' work can fail: each fault is planted, and complained of.

#include "grappolo/detto.h"
#include "grappolo/ldvdaregistrare.h"
#include "grappolo/racconto.h"
#include "grappolo/turno.h"
#include "support/bancadati.h"

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using namespace giacenza::prove;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

Voce voce(Lavoro lavoro, Esito esito, const QString& giacenza = u"42"_s)
{
    static int passo = 0;
    Voce voce;
    voce.postazione = 1;
    voce.passo = ++passo;
    voce.lavoro = lavoro;
    voce.esito = esito;
    voce.ldv = ldvPropria(1, 0);
    voce.giacenza = giacenza;
    voce.giorno = QDate(2026, 11, 21);
    return voce;
}

Voce avviso(bool contato)
{
    Voce suo = voce(Lavoro::avvisa, Esito::riuscito);
    suo.contato = contato;
    return suo;
}

Voce emissione(const QString& nuova)
{
    Voce sua = voce(Lavoro::riconsegna, Esito::riuscito);
    sua.nuovaLdv = nuova;
    return sua;
}

/// An archive in which workstation 1 has registered, noticed, re-delivered and closed its first waybill, told
/// as it is.
class Verifica : public testing::Test
{
protected:
    Verifica()
    {
        riempiTurno(mBase, 1);
        // Without their keys, so that what the keys forbid can be planted.
        for (const QString& tabella : {u"giace00f"_s, u"letve00f"_s}) {
            mBase.esegui(u"create table copia as select * from "_s + tabella);
            mBase.esegui(u"drop table "_s + tabella);
            mBase.esegui(u"alter table copia rename to "_s + tabella);
        }
        mBase.esegui(u"insert into giace00f (GIFILI,GINRLV,GIANLV,GINRGI,GIANGI,GINRAV,GIDTAV,GIDTBF) values "
                     "('MI','101000',2026,'42',2026,'1','2026-11-21','2026-11-21')"_s);
        mBase.esegui(u"update letve00f set LERFGI='42', LEANGI=2026 where lenrlv='101000'"_s);
        mBase.esegui(u"insert into letve00f (lefili,lenrlv,leanlv,lerico,LERFGI,LEANGI) values "
                     "('MI','950000',2026,'R','42',2026)"_s);
    }

    QStringList difettiOra() const
    {
        auto connessione = mBase.amministratore();
        return difetti(fotografa(connessione));
    }
    QStringList smentiteOra(const QList<Voce>& voci) const
    {
        auto connessione = mBase.amministratore();
        return smentite(fotografa(connessione), voci);
    }
    QStringList smentiteOra() const { return smentiteOra(mVoci); }

    BancaDati mBase{"sqlite"};
    QList<Voce> mVoci = {voce(Lavoro::registra, Esito::riuscito), avviso(true), emissione(u"950000"_s),
                         voce(Lavoro::chiude, Esito::riuscito)};
};

TEST_F(Verifica, NienteDaDireDiUnArchivioComeEStatoDetto)
{
    EXPECT_THAT(difettiOra(), IsEmpty());
    EXPECT_THAT(smentiteOra(), IsEmpty());
}

TEST_F(Verifica, UnaRigaDoppia)
{
    mBase.esegui(u"insert into giace00f select * from giace00f"_s);
    EXPECT_THAT(difettiOra(),
                ElementsAre(u"numero 42/2026: due volte"_s, u"LDV MI/101000/2026: in giacenza due volte"_s));
}

TEST_F(Verifica, DueLdvConLoStessoNumeroDiGiacenza)
{
    mBase.esegui(
        u"insert into giace00f (GIFILI,GINRLV,GIANLV,GINRGI,GIANGI) values ('MI','101001',2026,'42',2026)"_s);
    mBase.esegui(u"update letve00f set LERFGI='42', LEANGI=2026 where lenrlv='101001'"_s);
    EXPECT_THAT(difettiOra(), ElementsAre(u"numero 42/2026: due volte"_s));
    EXPECT_THAT(smentiteOra(), ElementsAre(u"LDV 101001: è in giacenza, ma nessuno l'ha registrata"_s));
}

TEST_F(Verifica, UnaRigaMancante)
{
    mBase.esegui(u"delete from giace00f"_s);
    EXPECT_THAT(difettiOra(),
                ElementsAre(u"LDV MI/101000/2026: nomina la giacenza 42/2026, che non è sua"_s,
                            u"LDV MI/950000/2026: nomina la giacenza 42/2026, che non è sua"_s));
    EXPECT_THAT(smentiteOra(), ElementsAre(u"LDV 101000: la giacenza 42, detta registrata, non c'è"_s));
}

TEST_F(Verifica, UnLegameMancante)
{
    mBase.esegui(u"update letve00f set LERFGI=null where lenrlv='101000'"_s);
    EXPECT_THAT(difettiOra(), ElementsAre(u"giacenza 42/2026: la LDV MI/101000/2026 non la nomina"_s));
}

TEST_F(Verifica, UnLegameDiTroppo)
{
    mBase.esegui(u"update letve00f set LERFGI='42', LEANGI=2026 where lenrlv='101001'"_s);
    EXPECT_THAT(difettiOra(),
                ElementsAre(u"LDV MI/101001/2026: nomina la giacenza 42/2026, che non è sua"_s));
}

TEST_F(Verifica, UnaRiconsegnaDoppiaOMancante)
{
    mBase.esegui(u"insert into letve00f (lefili,lenrlv,leanlv,lerico,LERFGI,LEANGI) values "
                 "('MI','950001',2026,'R','42',2026)"_s);
    EXPECT_THAT(smentiteOra(),
                ElementsAre(u"LDV 101000: riconsegne 950001, 950000, dette 1 e 0 non si sa"_s));
    mBase.esegui(u"delete from letve00f where lerico='R'"_s);
    EXPECT_THAT(smentiteOra(), ElementsAre(u"LDV 101000: la riconsegna 950000, detta emessa, c'è 0 volte"_s));
}

TEST_F(Verifica, UnAvvisoPersoODoppio)
{
    mBase.esegui(u"update giace00f set GINRAV='2'"_s);
    EXPECT_THAT(smentiteOra(), ElementsAre(u"LDV 101000: avvisi contati 2, detti 1 e 0 non si sa"_s));
    mBase.esegui(u"update giace00f set GINRAV=null"_s);
    EXPECT_THAT(smentiteOra(), ElementsAre(u"LDV 101000: avvisi contati 0, detti 1 e 0 non si sa"_s));
}

TEST_F(Verifica, UnaChiusuraPersa)
{
    mBase.esegui(u"update giace00f set GIDTBF=null"_s);
    EXPECT_THAT(smentiteOra(), ElementsAre(u"LDV 101000: detta chiusa il 2026-11-21, è \"\""_s));
}

TEST_F(Verifica, UnGuastoCheNonEVero)
{
    const QList<Voce> dette = {voce(Lavoro::registra, Esito::fallito), voce(Lavoro::chiude, Esito::fallito)};
    EXPECT_THAT(smentiteOra(dette), ElementsAre(u"LDV 101000: detta non registrata, ma è la giacenza 42"_s,
                                                u"LDV 101000: avvisi contati 1, detti 0 e 0 non si sa"_s,
                                                u"LDV 101000: detta non chiusa, ma lo è dal 2026-11-21"_s,
                                                u"LDV 101000: riconsegne 950000, dette 0 e 0 non si sa"_s));
}

TEST_F(Verifica, DiCioCheNonSiSaValeTutto)
{
    QList<Voce> dette;
    for (const Lavoro lavoro : {Lavoro::registra, Lavoro::avvisa, Lavoro::riconsegna, Lavoro::chiude})
        dette << voce(lavoro, Esito::ignoto);
    EXPECT_THAT(smentiteOra(dette), IsEmpty());
    mBase.esegui(u"delete from giace00f"_s);
    mBase.esegui(u"delete from letve00f where lerico='R'"_s);
    EXPECT_THAT(smentiteOra(dette), IsEmpty());
}

TEST_F(Verifica, UnRifiutoCheNonEVero)
{
    Voce esistente = voce(Lavoro::registra, Esito::rifiutato);
    esistente.ldv = ldvPropria(1, 3);
    mVoci << esistente;
    EXPECT_THAT(smentiteOra(), ElementsAre(u"LDV 101003: detta già in giacenza, ma non c'è"_s));
}

TEST_F(Verifica, UnRifiutoPerUnaGara)
{
    Voce gara = voce(Lavoro::registra, Esito::fallito);
    gara.ldv = ldvPropria(1, 3);
    gara.stato = u"Due postazioni si sono ostacolate: riprovare."_s;
    mVoci << gara;
    EXPECT_THAT(smentiteOra(),
                ElementsAre(u"LDV 101003: registra rifiutata per una gara: Due postazioni si sono "
                            "ostacolate: riprovare."_s));
}

TEST_F(Verifica, UnaChiaveDettaPresaCheNonLoE)
{
    Voce presa = voce(Lavoro::registra, Esito::fallito);
    presa.stato =
        u"Giacenza esistente impossibile inserirla in database. La LDV 101003 è già la giacenza 7/2026."_s;
    mVoci << presa;
    EXPECT_THAT(smentiteOra(), IsEmpty());
    mVoci.last().ldv = ldvPropria(1, 3);
    EXPECT_THAT(smentiteOra(), ElementsAre(u"LDV 101003: detta già in giacenza, ma non c'è"_s));
}

TEST(Detto, SiCapisceDaiMessaggiEDallaRigaDiStato)
{
    const auto voci = capisci(
        Lavoro::registra,
        {true, u"42"_s, {u"Giacenza aggiunta in database."_s}, u"Avviso di giacenza 42_2026 prodotto."_s});
    ASSERT_EQ(voci.size(), 2);
    EXPECT_EQ(voci[0].esito, Esito::riuscito);
    EXPECT_EQ(voci[1].lavoro, Lavoro::avvisa);
    EXPECT_TRUE(voci[1].contato);
    const QStringList impossibile = {u"Impossibile aggiungere la nuova giacenza."_s};
    EXPECT_EQ(
        capisci(Lavoro::registra, {true, {}, impossibile, u"La connessione con l'archivio è caduta."_s})[0]
            .esito,
        Esito::fallito);
    EXPECT_EQ(
        capisci(Lavoro::registra, {true, {}, impossibile, u"Non si sa se la giacenza 42/2026 è"_s})[0].esito,
        Esito::ignoto);
    EXPECT_EQ(
        capisci(Lavoro::riconsegna, {true, u"42"_s, {}, u"Emessa la lettera di vettura 950000/2026."_s})[0]
            .nuovaLdv,
        u"950000"_s);
    EXPECT_EQ(capisci(Lavoro::chiude, {false, u"42"_s, {}, u"Giacenza 42_2026 chiusa, documento"_s})[0].esito,
              Esito::fallito);
}

TEST(Giornale, SiRileggeCioCheSiEScritto)
{
    const QTemporaryDir cartella;
    const QString file = cartella.filePath(u"giornale"_s);
    Voce scritta = emissione(u"950000"_s);
    scritta.messaggi = {u"una \"frase\"\nin due righe"_s};
    scritta.stato = u"stato"_s;
    scritta.millisecondi = 1234;
    {
        Giornale giornale(file);
        giornale.scrivi(voce(Lavoro::registra, Esito::iniziato));
        giornale.scrivi(scritta);
    }
    const auto lette = leggiGiornale(file);
    ASSERT_EQ(lette.size(), 2);
    EXPECT_EQ(lette[0].esito, Esito::iniziato);
    EXPECT_EQ(lette[1].nuovaLdv, u"950000"_s);
    EXPECT_EQ(lette[1].messaggi, scritta.messaggi);
    EXPECT_EQ(lette[1].giorno, scritta.giorno);
    EXPECT_EQ(lette[1].millisecondi, 1234);
    // The second one began nowhere; the first one never ended.
    EXPECT_EQ(conclusioni(lette).size(), 2);
}

} // namespace
