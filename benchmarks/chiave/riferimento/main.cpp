// Stays, one run for each request: an operation by key by the driver's calls alone. The argument says which.

#include "benchmarks/chiave/riferimento/operazioni.h"
#include "benchmarks/quadro/residente.h"

#include <map>

using namespace nudo;

namespace {

using Operazione = double (*)(Base& schermo, const Parti& parti);

const std::map<std::string, Operazione> operazioni{{"lookup", ricerca},
                                                   {"save", salvataggio},
                                                   {"notice", avviso},
                                                   {"closure", chiusura},
                                                   {"issue", emissione}};

/// What stands behind the case's own parts puts everything back.
void ripristina(Base& base, const Parti& parti)
{
    constexpr std::size_t primo = 9;
    base.apri();
    for (std::size_t i = primo; i < parti.size(); ++i)
        base.esegui(parti[i]);
}

} // namespace

int main(int argc, char* argv[])
{
    const auto scelta = argc == 2 ? operazioni.find(argv[1]) : operazioni.end();
    if (scelta == operazioni.end())
        return EXIT_FAILURE;
    try {
        Base schermo;
        Base altra;
        schermo.apri();
        return banco::servi(
            [&](const Parti&) { schermo.apri(); }, // a screen has its case up, and its connection
            [&](const Parti& parti) { return scelta->second(schermo, parti); },
            [&](const Parti& parti) { ripristina(altra, parti); },
            [&](const Parti& parti) {
                schermo.apri();
                std::vector<std::string> inviate;
                registra(&inviate);
                scelta->second(schermo, parti);
                registra(nullptr);
                ripristina(altra, parti);
                return inviate;
            });
    } catch (const std::exception& errore) {
        std::cerr << errore.what() << '\n';
        return EXIT_FAILURE;
    }
}
