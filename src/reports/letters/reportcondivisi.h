#pragma once

#include "reports/letters/rptavviso.h"
#include "reports/letters/rptbuonfine.h"

namespace giacenza {

/// The one instance of each report that a thread has: what the closure hides on it is hidden on the paper.
RptAvviso& rptAvviso();
RptBuonFine& rptBuonFine();

} // namespace giacenza
