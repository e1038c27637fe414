#pragma once

#include "benchmarks/quadro/misura.h"

#include <memory>

namespace banco {

/// What one run cost.
struct Corsa
{
    double millisecondi;
    double megabyte; ///< the most memory that the process had so far
};

/// Makes the runs of a measured program. All throw giacenza::Errore when the program fails or prints
/// something else.
class Corridore
{
public:
    Corridore() = default;
    Corridore(const Corridore&) = delete;
    Corridore& operator=(const Corridore&) = delete;
    virtual ~Corridore() = default;

    virtual Corsa corri() = 0;
    /// Makes a run on the first request and gives the statements that it sent.
    virtual QStringList istruzioni() = 0;
};

/// Started anew for each run, or once, as the program's requests say.
std::unique_ptr<Corridore> creaCorridore(const Programma& programma);

} // namespace banco
