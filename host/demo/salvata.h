#pragma once

#include "archivio.h"
#include "regista.h"

/// Saves what stands on the registration screen: presses the keys, takes the message, and verifies that the
/// row, its link, its notice, the counter and the letter are there. Throws Imprevisto.
void salvaEVerifica(Regista& regista, Archivio& archivio, QWidget* schermata, const Spedizione& spedizione,
                    const QString& cartella);
