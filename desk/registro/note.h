#pragma once

#include "data/istruzioni.h"
#include "database/connessione.h"

namespace giacenza::registro {

/// The longest author and note that are taken, in characters.
inline constexpr int lunghezzaAutore = 80;
inline constexpr int lunghezzaNota = 20'000;

/// Adds a note to a case; it is never changed afterwards. Blanks around author and text are left out. Throws
/// Errore in Italian when either is empty or too long, ErroreDatabase.
void aggiungiNota(Connessione& connessione, const ChiaveGiacenza& chiave, const QString& autore,
                  const QString& testo);

/// Who writes here, as long as nobody says otherwise: what the program says in GIACENZA_UTENTE, else the
/// account of the system; may be empty.
QString autoreProposto();

} // namespace giacenza::registro
