#pragma once

#include <giacenza/Errore.h>

#include <QElapsedTimer>

namespace giacenza {

/// How often what a race broke is tried again before the failure is told.
inline constexpr int ripetizioni = 5;

/// Whether the database ended a transaction because of another one: a deadlock, or a cluster that did not
/// certify it. It was rolled back, whatever the failing call was.
bool perConcorrenza(const ErroreDatabase& errore);

/// Whether the database refused a row because another one has its key.
bool perDoppione(const ErroreDatabase& errore);

/// The code with which a server tells a lock that was waited for too long; a node of a group, with SQLSTATE
/// 40001, also that it could not find out what the others have confirmed, since one was just leaving or
/// coming back.
inline constexpr int codiceAttesaVana = 1205;
bool perAttesaVana(const ErroreDatabase& errore);

/// For how long what a group broke off is tried again, in milliseconds: it takes some seconds until the group
/// is one again.
inline constexpr qint64 pazienzaPerIlGruppo = 15'000;

/// A random moment, up to 10 ms and, from try to try, up to a quarter of a second: those who met do not meet
/// again, and a whole depot that was let go at once gets through. For a group a quarter of a second.
/// tentativo: the try that failed, from 1.
void pausaDopo(int tentativo, const ErroreDatabase& errore);

/// Does something and, when it fails as daRipetere says, does it again after a pause, up to `ripetizioni`
/// times; what a group broke off, as often as it takes within `pazienzaPerIlGruppo`. Throws the last failure.
template<class Azione, class DaRipetere>
auto conTentativi(Azione azione, DaRipetere daRipetere)
{
    QElapsedTimer orologio;
    orologio.start();
    for (int tentativo = 1;;) {
        try {
            return azione();
        } catch (const ErroreDatabase& errore) {
            if (!daRipetere(errore))
                throw;
            if (perAttesaVana(errore) ? orologio.elapsed() > pazienzaPerIlGruppo : tentativo > ripetizioni)
                throw;
            pausaDopo(tentativo, errore);
            tentativo += perAttesaVana(errore) ? 0 : 1;
        }
    }
}

} // namespace giacenza
