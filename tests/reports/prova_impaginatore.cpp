#include "reports/engine/impaginatore.h"

#include <gmock/gmock.h>

using namespace giacenza::report;

namespace giacenza::report {

void PrintTo(const Pezzo& pezzo, std::ostream* uscita)
{
    *uscita << "{blocco " << pezzo.blocco << ", " << pezzo.da << "-" << pezzo.a << ", y " << pezzo.y << "}";
}

} // namespace giacenza::report

namespace {

using Pagine = std::vector<std::vector<Pezzo>>;

struct Caso
{
    const char* nome;
    std::vector<Blocco> blocchi;
    Pagine attese;
};

/// Ten lines of 10 mm each.
Blocco testo(double altezza)
{
    Blocco blocco{altezza, {}, false};
    for (double y = 0; y + 10 <= altezza; y += 10)
        blocco.uniti.push_back({y, y + 10});
    return blocco;
}

class Impaginatore : public testing::TestWithParam<Caso>
{};

TEST_P(Impaginatore, divide)
{
    EXPECT_EQ(impagina(GetParam().blocchi, 100), GetParam().attese);
}

INSTANTIATE_TEST_SUITE_P(
    Casi, Impaginatore,
    testing::Values(
        Caso{"niente", {}, {{}}}, Caso{"unoSolo", {{40, {}, false}}, {{{0, 0, 40, 0}}}},
        Caso{"inFila", {{40, {}, false}, {60, {}, false}}, {{{0, 0, 40, 0}, {1, 0, 60, 40}}}},
        Caso{"ilSecondoNonCiSta", {{40, {}, false}, {61, {}, false}}, {{{0, 0, 40, 0}}, {{1, 0, 61, 0}}}},
        Caso{"pagineDiverse", {{20, {}, true}, {20, {}, true}}, {{{0, 0, 20, 0}}, {{1, 0, 20, 0}}}},
        Caso{"altoUnaPagina", {testo(100)}, {{{0, 0, 100, 0}}}},
        Caso{"arrotondamento", {{99.9999999 + 0.0000002, {}, false}}, {{{0, 0, 99.9999999 + 0.0000002, 0}}}},
        Caso{"continua", {testo(250)}, {{{0, 0, 100, 0}}, {{0, 100, 200, 0}}, {{0, 200, 250, 0}}}},
        Caso{"continuaSottoUnAltro",
             {{35, {}, false}, testo(120)},
             {{{0, 0, 35, 0}, {1, 0, 60, 35}}, {{1, 60, 120, 0}}}},
        Caso{"nonTagliaUnaRiga",
             {{{105, {{0, 40}, {40, 95}, {95, 105}}, false}}},
             {{{0, 0, 95, 0}}, {{0, 95, 105, 0}}}},
        Caso{"titoloConIlTesto", // 85-95 heading, 95-105 first line, one piece with it
             {{{130, {{0, 85}, {85, 105}, {105, 130}}, false}}},
             {{{0, 0, 85, 0}}, {{0, 85, 130, 0}}}},
        Caso{"intrecciati",
             {{{120, {{0, 50}, {45, 80}, {75, 110}}, false}}},
             {{{0, 0, 100, 0}}, {{0, 100, 120, 0}}}},
        Caso{"nullaDaTagliare",
             {{{250, {{0, 250}}, false}}},
             {{{0, 0, 100, 0}}, {{0, 100, 200, 0}}, {{0, 200, 250, 0}}}},
        Caso{"nullaDaTagliareSottoUnAltro",
             {{30, {}, false}, {120, {{0, 120}}, false}},
             {{{0, 0, 30, 0}}, {{1, 0, 100, 0}}, {{1, 100, 120, 0}}}},
        Caso{"bloccoVuoto", {{0, {}, false}}, {{{0, 0, 0, 0}}}}),
    [](const auto& informazioni) { return std::string(informazioni.param.nome); });

TEST(Impaginatore, paginaSenzaAltezzaFinisceLoStesso)
{
    const Blocco blocco{2.5, {{0, 2.5}}, false};
    EXPECT_EQ(impagina({&blocco, 1}, 0).size(), 3U);
    EXPECT_EQ(impagina({&blocco, 1}, -5).size(), 3U);
}

} // namespace
