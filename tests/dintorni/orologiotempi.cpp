// What waits and what comes again does so by a clock that only runs on, wherever the machine's goes.

#include "dintorni/oradiprova.h"

#include "desk/deskdiprova.h"

#include "database/basi.h"

#include <chrono>
#include <thread>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

using namespace giacenza;
using namespace giacenza::prove;

namespace {

using Orologio = std::chrono::steady_clock;

constexpr int unGiorno = 24 * 60 * 60;

/// How long something takes while the clock jumps so long after its begin.
std::chrono::milliseconds durataConUnSalto(std::chrono::milliseconds dopo, int secondi,
                                           const std::function<void()>& cosa)
{
    const auto inizio = Orologio::now();
    std::jthread salto([dopo, secondi] {
        std::this_thread::sleep_for(dopo);
        sposta(secondi);
    });
    cosa();
    return std::chrono::duration_cast<std::chrono::milliseconds>(Orologio::now() - inizio);
}

class OrologioTempi : public testing::TestWithParam<int>
{
protected:
    OrologioTempi() { sposta(0); }
};

INSTANTIATE_TEST_SUITE_P(Salti, OrologioTempi, testing::Values(unGiorno, -unGiorno),
                         [](const auto& parametro) {
                             return parametro.param > 0 ? std::string("avanti") : std::string("indietro");
                         });

TEST_P(OrologioTempi, UnBloccoDiSqliteNonTieneNessunoOltreSeStesso)
{
    const BancaDati base("sqlite");
    Connessione chiTiene = base.connessione();
    chiTiene.esegui(u"begin immediate"_s);
    Connessione connessione;
    connessione.apri(base.stringa(), Limiti{.comando = 6, .connessione = 1});
    bool fallita = false;
    // In the middle of the second wait, of the two of three seconds each that the limit allows.
    const std::jthread tra([&chiTiene] {
        std::this_thread::sleep_for(9s);
        chiTiene.esegui(u"rollback"_s);
    });
    const auto durata = durataConUnSalto(4500ms, GetParam(), [&] {
        try {
            connessione.esegui(u"insert into porto values (9,'x')"_s);
        } catch (const ErroreDatabase&) {
            fallita = true;
        }
    });
    EXPECT_GE(durata, 2900ms);
    EXPECT_LE(durata, 20s);
    // The driver's second wait is by the machine's clock: set back meanwhile, it lasts as long as the lock.
    EXPECT_EQ(fallita, GetParam() > 0);
}

TEST_P(OrologioTempi, UnServerCheNonRispondeSiAspettaQuantoDetto)
{
    const BancaDati base("mariadb");
    Connessione connessione;
    connessione.apri(base.stringa() + u";READ_TIMEOUT=1"_s);
    const auto durata = durataConUnSalto(
        500ms, GetParam(), [&] { EXPECT_THROW(connessione.esegui(u"select sleep(20)"_s), ErroreDatabase); });
    EXPECT_GE(durata, 900ms);
    EXPECT_LE(durata, 15s);
}

class OrologioDesk : public DeskDiProva
{
protected:
    OrologioDesk()
    {
        segna(u"2026-12-31 23:50:00"_s);
        impostaOggi({});
        apriDesk([](desk::FinestraDesk& desk) { desk.setIntervallo(100); });
        attendiElenco();
    }

    QString giorni(const QString& giacenza) const
    {
        const QAbstractItemModel* modello = elenco()->model();
        for (int quale = 0; quale < modello->columnCount(); ++quale)
            if (modello->headerData(quale, Qt::Horizontal).toString() == u"Giorni"_s)
                for (int riga = 0; riga < modello->rowCount(); ++riga)
                    if (modello->index(riga, 1).data().toString().trimmed() == giacenza)
                        return modello->index(riga, quale).data().toString().trimmed();
        return u"no such row"_s;
    }
};

INSTANTIATE_TEST_SUITE_P(Basi, OrologioDesk, testing::Values("sqlite", "mariadb"),
                         nomeBase<testing::TestParamInfo<std::string>>);

TEST_P(OrologioDesk, LElencoContaIGiorniDelGiornoAncheQuandoLOrologioSalta)
{
    // Held since 18/11/2026.
    attendi([this] { return giorni(u"41/2026"_s) == u"43"_s; });
    segna(u"2027-01-01 00:00:01"_s);
    attendi([this] { return giorni(u"41/2026"_s) == u"44"_s; });
    segna(u"2026-11-20 10:00:00"_s);
    attendi([this] { return giorni(u"41/2026"_s) == u"2"_s; });
    segna(u"2028-02-29 10:00:00"_s);
    attendi([this] { return giorni(u"41/2026"_s) == u"468"_s; });
}

} // namespace
