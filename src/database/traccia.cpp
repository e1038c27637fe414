#include "database/traccia.h"

#include <utility>

namespace giacenza {

namespace {
thread_local Traccia tracciaCorrente;
}

Traccia impostaTraccia(Traccia traccia)
{
    return std::exchange(tracciaCorrente, std::move(traccia));
}

void traccia(EventoDati evento, const QString& testo)
{
    if (!tracciaCorrente)
        return;
    // A copy: the tracer may take itself away while it runs.
    const Traccia chiamata = tracciaCorrente;
    chiamata(evento, testo);
}

} // namespace giacenza
