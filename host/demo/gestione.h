#pragma once

#include "archivio.h"
#include "regista.h"

#include <giacenza/cGiacenza.h>

/// Works on the cases that were registered today: one is taken from the list of its customer's and closed
/// without costs, another is brought up by its number, refused and noticed again on a later day, reprinted,
/// closed with its costs and closed once more. cartella: where the documents are kept. Throws Imprevisto.
void raccontaGestione(Regista& regista, giacenza::cGiacenza& componente, Archivio& archivio,
                      const QString& cartella);
