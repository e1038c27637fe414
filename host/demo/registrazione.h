#pragma once

#include "archivio.h"
#include "regista.h"

#include <giacenza/cGiacenza.h>

/// The main job: a waybill is found by its number, held, and noticed; a second one comes from the host.
/// cartella: where the notices are kept. Throws Imprevisto.
void raccontaRegistrazione(Regista& regista, giacenza::cGiacenza& giacenza, Archivio& archivio,
                           const QString& cartella);
