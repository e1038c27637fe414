#pragma once

#include "reports/rptavviso.h"
#include "reports/rptbuonfine.h"

namespace giacenza {

/// The one instance of each report that a thread has: what the closure hides on it is hidden on the paper.
RptAvviso& rptAvviso();
RptBuonFine& rptBuonFine();

} // namespace giacenza
