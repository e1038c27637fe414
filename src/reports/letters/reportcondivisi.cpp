#include "reports/letters/reportcondivisi.h"

namespace giacenza {

RptAvviso& rptAvviso()
{
    thread_local RptAvviso report;
    return report;
}

RptBuonFine& rptBuonFine()
{
    thread_local RptBuonFine report;
    return report;
}

} // namespace giacenza
