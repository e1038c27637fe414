#include "base/orologio.h"
#include "desk/dati/catena.h"
#include "desk/dati/scadenzario.h"
#include "desk/documenti/contoletto.h"
#include "management/gestionediprova.h"
#include "support/stampa.h"

#include <QTest>

using namespace giacenza;
using namespace giacenza::prove;
using namespace Qt::StringLiterals;

namespace {

constexpr int setteGiorni = 7;

/// A waybill of another branch has number and year of the one that is held, and another customer's terms.
class DueFiliali : public GestioneDiProva
{
protected:
    DueFiliali()
    {
        mBase.esegui(QStringLiteral(R"(
insert into letve00f (lefili,lenrlv,leanlv,ledtlv,lecodi,lecmpe) values ('BO','4712',2026,'2026-11-03',900,'A');
insert into tabfatturazione (FALCOD,FACODI,FACMPE,FADFGI,FAFRGI,FATGIG,FAMIGI) values ('C',900,'A',3.00,30,1.00,10.00);
)"));
    }

    desk::RigaCaso nellElenco()
    {
        desk::RigaCaso trovata;
        desk::Scadenzario elenco;
        bool finito = false;
        QObject::connect(&elenco, &desk::Scadenzario::arrivate, [&](std::vector<desk::RigaCaso>& righe) {
            for (const desk::RigaCaso& riga : righe)
                if (riga.caso.chiave.numero == u"39"_s)
                    trovata = riga;
        });
        QObject::connect(&elenco, &desk::Scadenzario::finito, [&] { finito = true; });
        elenco.leggi({mBase.accesso(), {}, oggi(), setteGiorni});
        EXPECT_TRUE(QTest::qWaitFor([&] { return finito; }, 20'000));
        return trovata;
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, DueFiliali, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(DueFiliali, ElencoCasoEContoDiconoCioCheLaChiusuraAddebita)
{
    const desk::RigaCaso riga = nellElenco();
    Connessione connessione = mBase.connessione();
    const auto catena = desk::leggiCatena(connessione, {u"39"_s, 2026}, {}, oggi(), setteGiorni);
    ASSERT_TRUE(catena);
    const auto conto =
        documenti::calcolaConto(documenti::leggiDatiConto(connessione, {u"39"_s, 2026}), oggi());
    ASSERT_TRUE(conto.importi);

    richiamaAvvisato();
    scorciatoia(Qt::Key_B);
    const QStringList scritti = caso(u"FissoGiacenza,GIIMGI"_s, u"39"_s).split(u'|');
    ASSERT_EQ(scritti.size(), 2);
    const QString fisso = documenti::comeScritto(scritti[0]);
    const QString sosta = documenti::comeScritto(scritti[1]);
    EXPECT_EQ(fisso, u"3.00"_s) << "by number and year the other branch's row comes first";
    EXPECT_EQ(conto.importi->fisso, fisso);
    EXPECT_EQ(conto.importi->sosta, sosta);
    for (const desk::Valutazione& valutazione : {riga.valutazione, catena->riga.valutazione}) {
        EXPECT_EQ(valutazione.fisso, fisso);
        EXPECT_EQ(valutazione.sosta, sosta);
        EXPECT_EQ(valutazione.franchi, 14) << "thirty days less the sixteen of storage";
        EXPECT_EQ(desk::parole(valutazione.stato), u"in attesa"_s);
    }
}

} // namespace
