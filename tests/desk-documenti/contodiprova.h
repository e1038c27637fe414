#pragma once

#include "desk/documenti/conto.h"
#include "support/stampa.h"

using namespace Qt::StringLiterals;

namespace giacenza::prove {

/// A case of 01/11/2026 of a customer with 5 free days, 1.50 a day, 15.00 at least and 5.00 once.
inline documenti::DatiConto datiDiProva()
{
    documenti::DatiConto dati;
    dati.caso = {u"40"_s, 2026};
    dati.ldv = {u"MI"_s, u"4711"_s, 2026};
    dati.cliente = u"1001"_s;
    dati.ragioneSociale = u"Ferramenta Lombarda S.r.l."_s;
    dati.destinatario = u"Utensileria del Lago"_s;
    dati.dal = QDate(2026, 11, 1);
    dati.condizioni = CondizioniSosta{u"5"_s, u"5"_s, u"1.5"_s, u"15"_s};
    return dati;
}

} // namespace giacenza::prove
