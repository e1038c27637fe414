#pragma once

#include "archivio.h"
#include "regista.h"

#include <giacenza/cGiacenza.h>

/// Sends held goods on their way: a re-delivery, a second one of the same case that is first refused and then
/// accepted, a closed case that cannot be re-delivered, and a return to the sender. The waybills are printed
/// into the program's print folder, and copied to cartella. Throws Imprevisto.
void raccontaRiconsegna(Regista& regista, giacenza::cGiacenza& componente, Archivio& archivio,
                        const QString& cartella);
