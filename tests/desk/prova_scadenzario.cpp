#include "desk/dati/scadenzario.h"

#include "desk/casi.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

#include <QTest>

using namespace giacenza;
using namespace giacenza::desk;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr int pazienza = 20'000;
constexpr int setteGiorni = 7;

class ProvaScadenzario : public testing::TestWithParam<std::string>
{
protected:
    ProvaScadenzario()
    {
        QObject::connect(&mElenco, &Scadenzario::arrivate, [this](std::vector<RigaCaso>& righe) {
            ++mLotti;
            std::move(righe.begin(), righe.end(), std::back_inserter(mRighe));
        });
        QObject::connect(&mElenco, &Scadenzario::finito, [this] { mFinito = true; });
        QObject::connect(&mElenco, &Scadenzario::fallito,
                         [this](const QString& testo, const QString& dettaglio) {
                             mFallito = {testo, dettaglio};
                         });
    }

    RichiestaElenco richiesta(const QString& filiale = {}) const
    {
        return {mBase.accesso(), filiale, oggiCasi(), setteGiorni};
    }
    void leggi(const RichiestaElenco& cosa)
    {
        mRighe.clear();
        mFinito = false;
        mElenco.leggi(cosa);
        ASSERT_TRUE(QTest::qWaitFor([this] { return mFinito || !mFallito.isEmpty(); }, pazienza));
    }
    QStringList numeri() const
    {
        QStringList tutti;
        for (const RigaCaso& riga : mRighe)
            tutti << riga.caso.chiave.numero;
        return tutti;
    }

    BancaDati mBase{GetParam()};
    Scadenzario mElenco;
    std::vector<RigaCaso> mRighe;
    int mLotti = 0;
    bool mFinito = false;
    QStringList mFallito;
};

} // namespace

TEST_P(ProvaScadenzario, leggeTuttoCioCheLElencoMostra)
{
    riempiCasi(mBase);
    leggi(richiesta());
    EXPECT_THAT(numeri(), ElementsAre(u"44"_s, u"42"_s, u"45"_s, u"43"_s, u"41"_s))
        << "the closed one is not among them";
    const RigaCaso& riga = mRighe.at(1);
    const Caso& c = riga.caso;
    EXPECT_EQ(nomeGiacenza(c.chiave), u"42/2026"_s);
    EXPECT_EQ(nomeLdv(c.ldv), u"4722/2026 MI"_s);
    EXPECT_EQ(c.dataLdv, QDate(2026, 11, 5));
    EXPECT_EQ(c.cliente, u"1001"_s);
    EXPECT_EQ(c.ragioneSociale, u"Ferramenta Lombarda S.r.l."_s);
    EXPECT_EQ(c.destinatario, u"Bar Centrale"_s);
    EXPECT_EQ(c.localita, u"Lecco"_s);
    EXPECT_EQ(c.provincia, u"LC"_s);
    EXPECT_EQ(c.riferimento, u"ORD-902"_s);
    EXPECT_EQ(c.motivo, u"10/11/2026 - Chiuso per ferie"_s);
    EXPECT_EQ(c.filiale, u"MI"_s);
    EXPECT_EQ(c.dal, QDate(2026, 11, 10));
    EXPECT_EQ(c.avvisi, u"2"_s);
    EXPECT_EQ(c.ultimoAvviso, QDate(2026, 11, 12));
    EXPECT_EQ(c.riconsegne, 2);
    EXPECT_EQ(c.ultimaLegata, QDate(2026, 11, 14));
    EXPECT_EQ(c.colli, 1);
    EXPECT_EQ(inCentesimi(c.peso), 1200);
    EXPECT_EQ(riga.valutazione.centesimi, 1000);
    QStringList stati;
    for (const RigaCaso& r : mRighe)
        stati << parole(r.valutazione.stato);
    EXPECT_THAT(
        stati, ElementsAre(u"ferma"_s, u"in addebito"_s, u"in attesa"_s, u"in scadenza"_s, u"da avvisare"_s));
    EXPECT_EQ(mRighe.at(0).valutazione.senzaImporto, u"senza condizioni"_s);
}

TEST_P(ProvaScadenzario, diUnaFilialeSoloLeSue)
{
    riempiCasi(mBase);
    leggi(richiesta(u"bo"_s));
    EXPECT_THAT(numeri(), ElementsAre(u"45"_s));
    leggi(richiesta(u"MI"_s));
    EXPECT_THAT(numeri(), ElementsAre(u"44"_s, u"42"_s, u"43"_s, u"41"_s)) << "43 names none: its waybill's";
    leggi(richiesta(u"M'I"_s));
    EXPECT_THAT(numeri(), IsEmpty());
}

TEST_P(ProvaScadenzario, leTantArrivanoALotti)
{
    QStringList valori;
    constexpr int quante = 2000;
    for (int i = 1; i <= quante; ++i)
        valori << u"('MI','%1',2026,'%1',2026,'2026-11-%2')"_s.arg(i).arg(1 + i % 20, 2, 10, QChar(u'0'));
    mBase.esegui(u"insert into giace00f (GIFILI,GINRLV,GIANLV,GINRGI,GIANGI,GIDTGI) values "_s +
                 valori.join(u','));
    leggi(richiesta());
    EXPECT_EQ(std::ssize(mRighe), quante);
    EXPECT_EQ(mLotti, 3);
    EXPECT_TRUE(std::is_sorted(mRighe.begin(), mRighe.end(),
                               [](const RigaCaso& a, const RigaCaso& b) { return a.caso.dal < b.caso.dal; }));
}

TEST_P(ProvaScadenzario, diUnaLetturaAnnullataNonArrivaNulla)
{
    riempiCasi(mBase);
    mElenco.leggi(richiesta());
    mElenco.annulla();
    EXPECT_FALSE(mElenco.inCorso());
    leggi(richiesta(u"BO"_s));
    EXPECT_THAT(numeri(), ElementsAre(u"45"_s)) << "only the second reading's";
}

TEST_P(ProvaScadenzario, unGuastoSiDice)
{
    RichiestaElenco cosa = richiesta();
    cosa.accesso = Accesso(u"DRIVER={Nessun driver}"_s);
    leggi(cosa);
    EXPECT_FALSE(mFinito);
    ASSERT_EQ(mFallito.size(), 2);
    EXPECT_FALSE(mFallito.at(0).isEmpty());
    EXPECT_FALSE(mElenco.inCorso());
}

TEST_P(ProvaScadenzario, andarseneMentreLeggeNonLasciaNulla)
{
    riempiCasi(mBase);
    Scadenzario breve;
    breve.leggi(richiesta());
    SUCCEED() << "its destructor waits for the thread";
}

INSTANTIATE_TEST_SUITE_P(Basi, ProvaScadenzario, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);
