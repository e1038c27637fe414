#pragma once

#include "benchmarks/chiave/caso.h"

namespace banco {

/// What is measured: one operation of ours, run again and again on other cases.
class Operazione
{
public:
    Operazione() = default;
    Operazione(const Operazione&) = delete;
    Operazione& operator=(const Operazione&) = delete;
    virtual ~Operazione() = default;

    /// Whatever is not the operation's own, such as bringing the case up.
    virtual void prepara([[maybe_unused]] const Caso& caso) {}
    /// Behind prepara(), where the statements of the run are kept: for what does not tell them by itself.
    virtual void registra() {}
    /// In milliseconds.
    virtual double esegui(const Caso& caso) = 0;
};

/// Serves requests until there are no more: prepares, runs, and puts everything back on a connection of its
/// own. Returns the exit code.
int servi(Operazione& operazione);

/// Keeps, while the first request is served, what connections do from its start: "connect", "begin",
/// "commit", "disconnect" or a statement. Stopped where the operation ends before its call returns.
void smettiDiRegistrare();

} // namespace banco
