#pragma once

#include "reports/letters/report.h"

namespace giacenza {

/// rptBuonFine, the closure statement. Its costs stand in controls of section "Dettaglio_Dettaglio" that the
/// closure hides by name when they are not wanted: corTot, lblsosta, txtGIGGSO, txtGIIMGI, lblDossier,
/// txtDossier, lblRiconsegna, txtRicons, lblTot, txtTot. Nothing else of the letter speaks of costs.
class RptBuonFine : public report::Report
{
public:
    RptBuonFine();

protected:
    QString titolo(const QString& numero, const QString& anno) const override;
};

} // namespace giacenza
