#pragma once

#include "reports/engine/definizione.h"
#include "reports/engine/riga.h"

/// Formats that fields share. Null shows as empty; a value that is not of its kind shows as it is.
namespace giacenza::report::formati {

/// "dd/mm/yyyy".
QString data(const Contesto& contesto);
/// Italian currency: "1.234,50 €".
QString importo(const Contesto& contesto);
/// Italian number without idle zeros, and its unit: "1.234,5 kg".
Formato quantita(const QString& unita = {});
/// "20100 Milano (MI)" from three columns, whichever of them are there.
Formato localita(const QString& cap, const QString& localita, const QString& provincia);

} // namespace giacenza::report::formati
