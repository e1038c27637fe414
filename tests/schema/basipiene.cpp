#include "basipiene.h"

#include <gtest/gtest.h>

#include <map>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

namespace {

std::map<std::pair<std::string, int>, std::unique_ptr<BancaDati>>& basi()
{
    static std::map<std::pair<std::string, int>, std::unique_ptr<BancaDati>> mappa;
    return mappa;
}

/// Throws the databases away while a failure to do so can still be told.
class Pulizia : public testing::Environment
{
public:
    void TearDown() override { basi().clear(); }
};

const testing::Environment* const pulizia = testing::AddGlobalTestEnvironment(new Pulizia);

} // namespace

const BancaDati& basePiena(const std::string& tipo, int spedizioni)
{
    std::unique_ptr<BancaDati>& base = basi()[{tipo, spedizioni}];
    if (base)
        return *base;
    const bool senzaStatistiche = tipo == "sqliteNuovo";
    auto nuova = std::make_unique<BancaDati>(senzaStatistiche ? "sqlite" : tipo);
    Connessione connessione = nuova->amministratore();
    dimostrazione::riempi(connessione, {.spedizioni = spedizioni, .oggi = oggiDimostrativo()});
    if (senzaStatistiche)
        connessione.esegui(u"delete from sqlite_stat1"_s);
    base = std::move(nuova);
    return *base;
}

} // namespace giacenza::prove
