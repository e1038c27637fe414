#include "desk/dati/scadenzario.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

#include <QProcess>
#include <QTemporaryDir>
#include <QTest>

#include <map>

using namespace giacenza;
using namespace giacenza::desk;
using namespace Qt::StringLiterals;
using testing::Contains;
using testing::Ge;
using testing::Pair;

namespace {

constexpr int pazienza = 60'000;
constexpr int setteGiorni = 7;

/// The open cases of the demonstration's archive of a day, as tools/archivio.sh has it made, read on that
/// day.
class StatiDimostrativi : public testing::Test
{
protected:
    std::vector<RigaCaso> casi(QDate oggi, const QStringList& argomenti)
    {
        const QString stringa =
            u"DRIVER={SQLite3};Database=%1;StepAPI=1;Timeout=5000;FKSupport=1;LoadExt=%2"_s.arg(
                mCartella.filePath(u"giacenza.db"_s), QStringLiteral(PARTE_SQLITE));
        QProcess genera;
        genera.start(QStringLiteral(GENERA_DATI), QStringList{stringa, u"--crea"_s} + argomenti);
        EXPECT_TRUE(genera.waitForFinished(pazienza) && genera.exitCode() == 0)
            << genera.readAllStandardError().toStdString();
        std::vector<RigaCaso> righe;
        bool finito = false;
        QString guasto;
        Scadenzario elenco;
        QObject::connect(&elenco, &Scadenzario::arrivate, [&](std::vector<RigaCaso>& lette) {
            std::move(lette.begin(), lette.end(), std::back_inserter(righe));
        });
        QObject::connect(&elenco, &Scadenzario::finito, [&] { finito = true; });
        QObject::connect(&elenco, &Scadenzario::fallito,
                         [&](const QString& testo, const QString& dettaglio) { guasto = testo + dettaglio; });
        elenco.leggi({Accesso(stringa), {}, oggi, setteGiorni});
        EXPECT_TRUE(QTest::qWaitFor([&] { return finito || !guasto.isEmpty(); }, pazienza));
        EXPECT_EQ(guasto, QString());
        return righe;
    }

    QTemporaryDir mCartella;
};

/// How many cases of each state there are, and of what an amount lacks.
std::map<QString, int> conta(const std::vector<RigaCaso>& righe)
{
    std::map<QString, int> quanti;
    for (const RigaCaso& riga : righe) {
        ++quanti[parole(riga.valutazione.stato)];
        if (!riga.valutazione.senzaImporto.isEmpty())
            ++quanti[riga.valutazione.senzaImporto];
    }
    return quanti;
}

void ciSonoTutti(const std::vector<RigaCaso>& righe)
{
    const std::map<QString, int> quanti = conta(righe);
    for (const QString& stato : {u"da avvisare"_s, u"in addebito"_s, u"in scadenza"_s, u"ferma"_s,
                                 u"in attesa"_s, u"senza condizioni"_s})
        EXPECT_THAT(quanti, Contains(Pair(stato, Ge(1))));
}

} // namespace

TEST_F(StatiDimostrativi, oggiCiSonoTutti)
{
    ciSonoTutti(casi(QDate::currentDate(), {}));
}

TEST_F(StatiDimostrativi, ancheIlPrimoDellAnno)
{
    // A day before which the depot rested: the numbers of the year begin anew too.
    ciSonoTutti(casi(QDate(2028, 1, 1), {u"--oggi"_s, u"2028-01-01"_s}));
}
