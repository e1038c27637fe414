#pragma once

#include "base/messaggi.h"
#include "data/istruzionisoggetti.h"

#include <optional>

namespace giacenza {

/// The numbers of the errors that the party search raises on purpose.
enum class ErroreSoggetti : int
{
    vuoto = 513,
    nonNumerico = 514,
    numerico = 515,
    lunghezzaIva = 516,
    nonTrovato = 3021 ///< no current record
};

/// Checks a text to search for against what it is sought by. Throws ErroreNumerato 513 to 516.
void ControllaCampoRicerca(const QString& testo, CampoSoggetto campo);

/// Throws the ErroreNumerato of a kind.
[[noreturn]] void sollevaErroreSoggetti(ErroreSoggetti quale);

/// What the operator is told for the number of an error; nothing for a number that is none of the above.
std::optional<Messaggio> messaggioSoggetti(int numero);

} // namespace giacenza
