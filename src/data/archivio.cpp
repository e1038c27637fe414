#include "data/archivio.h"

#include "base/impostazioni.h"

#include <utility>

namespace giacenza {

namespace {

thread_local Traccia tracciaCorrente;

void racconta(EventoDati evento, const QString& testo)
{
    if (!tracciaCorrente)
        return;
    // A copy: the tracer may take itself away while it runs.
    const Traccia chiamata = tracciaCorrente;
    chiamata(evento, testo);
}

} // namespace

Accesso accessoHost()
{
    return accessoTracciato(impostazioni().percorsoDatabase);
}

Accesso accessoTracciato(const QString& stringa)
{
    return {stringa, racconta};
}

Traccia impostaTraccia(Traccia traccia)
{
    return std::exchange(tracciaCorrente, std::move(traccia));
}

} // namespace giacenza
