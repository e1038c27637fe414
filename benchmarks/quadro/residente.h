#pragma once

#include "benchmarks/quadro/esito.h"

#include <exception>
#include <iostream>
#include <sstream>
#include <string>
#include <vector>

/// What a measured program that stays has in common with the bare ones beside it: nothing but the standard
/// library, so that these hold no code of ours.
namespace banco {

/// The parts of a request, which stand between tabulators.
inline std::vector<std::string> parti(const std::string& richiesta)
{
    std::vector<std::string> trovate;
    std::istringstream flusso(richiesta);
    for (std::string parte; std::getline(flusso, parte, '\t');)
        trovate.push_back(parte);
    return trovate;
}

/// Answers requests until there are no more.
///
/// esegui(parts): makes one run and gives its milliseconds; what it has to put back or prepare is not in
/// them. istruzioni(parts): makes one run and gives the statements that it sent, each on one line. Returns
/// the exit code.
template<class Esegui, class Istruzioni>
int servi(Esegui esegui, Istruzioni istruzioni)
{
    const std::string segno = chiediIstruzioni;
    try {
        for (std::string riga; std::getline(std::cin, riga);) {
            if (riga.compare(0, segno.size(), segno) == 0) {
                for (const std::string& istruzione : istruzioni(parti(riga.substr(segno.size()))))
                    std::cout << istruzione << '\n';
                std::cout << std::endl;
            } else {
                stampaEsito(esegui(parti(riga)), 0, 0);
            }
        }
    } catch (const std::exception& errore) {
        std::cerr << errore.what() << std::endl;
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}

} // namespace banco
