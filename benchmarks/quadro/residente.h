#pragma once

#include "benchmarks/quadro/esito.h"

#include <exception>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include <sys/mman.h>

/// What a measured program that stays has in common with the bare ones beside it: nothing but the standard
/// library and the system, so that these hold no code of ours.
namespace banco {

/// Fills the processor core's own caches with something else, and forgets the peak of memory that this took.
/// Between two presses of an operator seconds pass and other programs run; a loop of bare calls would find
/// all of its code and data at hand, a program with a screen to paint would not.
inline void raffredda()
{
    constexpr std::size_t quanti = 4U << 20;
    constexpr std::size_t riga = 64;
    // Mapped, so that nothing of it stays with the program.
    void* mappa = mmap(nullptr, quanti, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (mappa == MAP_FAILED)
        throw std::runtime_error("no memory to fill the caches with");
    auto* altro = static_cast<volatile unsigned char*>(mappa);
    for (std::size_t i = 0; i < quanti; i += riga)
        altro[i] = 1;
    munmap(mappa, quanti);
    if (std::FILE* picco = std::fopen("/proc/self/clear_refs", "w")) {
        std::fputs("5", picco);
        std::fclose(picco);
    }
}

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
/// prepara(parts): whatever comes before and is not measured. esegui(parts): makes one run and gives its
/// milliseconds. ripristina(parts): puts everything back. istruzioni(parts): makes one run and gives the
/// statements that it sent, each on one line. Returns the exit code.
template<class Prepara, class Esegui, class Ripristina, class Istruzioni>
int servi(Prepara prepara, Esegui esegui, Ripristina ripristina, Istruzioni istruzioni)
{
    const std::string segno = chiediIstruzioni;
    try {
        for (std::string riga; std::getline(std::cin, riga);) {
            if (riga.compare(0, segno.size(), segno) == 0) {
                for (const std::string& istruzione : istruzioni(parti(riga.substr(segno.size()))))
                    std::cout << istruzione << '\n';
                std::cout << std::endl;
            } else {
                const std::vector<std::string> richiesta = parti(riga);
                prepara(richiesta);
                raffredda();
                const double millisecondi = esegui(richiesta);
                ripristina(richiesta);
                stampaEsito(millisecondi, 0, 0);
            }
        }
    } catch (const std::exception& errore) {
        std::cerr << errore.what() << std::endl;
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}

} // namespace banco
