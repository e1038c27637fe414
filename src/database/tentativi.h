#pragma once

#include <giacenza/Errore.h>

namespace giacenza {

/// How often what a race broke is tried again before the failure is told.
inline constexpr int ripetizioni = 5;

/// Whether the database ended a transaction because of another one: a deadlock, or a cluster that did not
/// certify it. It was rolled back, whatever the failing call was.
bool perConcorrenza(const ErroreDatabase& errore);

/// The code with which a server tells a lock that was waited for too long; a node of a group, with SQLSTATE
/// 40001, also that it could not find out what the others have confirmed, since one was just leaving or
/// coming back.
inline constexpr int codiceAttesaVana = 1205;
bool perAttesaVana(const ErroreDatabase& errore);

/// A random moment, up to 10 ms and, from try to try, up to a quarter of a second: those who met do not meet
/// again, and a whole depot that was let go at once gets through. For a group half a second at most: it takes
/// that long to be one again. tentativo: the try that failed, from 1.
void pausaDopo(int tentativo, const ErroreDatabase& errore);

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
            pausaDopo(tentativo, errore);
        }
    }
}

} // namespace giacenza
