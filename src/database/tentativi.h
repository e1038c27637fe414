#pragma once

#include <giacenza/Errore.h>

namespace giacenza {

/// How often what a race broke is tried again before the failure is told.
inline constexpr int ripetizioni = 5;

/// Whether the database ended a transaction because of another one: a deadlock, or a cluster that did not
/// certify it. It was rolled back, whatever the failing call was.
bool perConcorrenza(const ErroreDatabase& errore);

/// A random moment, up to 50 ms and longer from try to try, so that those who met do not meet again.
/// tentativo: the try that failed, from 1.
void pausaDopo(int tentativo);

/// Does something and, when it fails as daRipetere says, does it again after a pause, up to `ripetizioni`
/// times. Throws the last failure.
template<class Azione, class DaRipetere>
auto conTentativi(Azione azione, DaRipetere daRipetere)
{
    for (int tentativo = 1;; ++tentativo) {
        try {
            return azione();
        } catch (const ErroreDatabase& errore) {
            if (tentativo > ripetizioni || !daRipetere(errore))
                throw;
        }
        pausaDopo(tentativo);
    }
}

} // namespace giacenza
