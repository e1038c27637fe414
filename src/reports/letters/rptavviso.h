#pragma once

#include "reports/letters/report.h"

namespace giacenza {

/// rptAvviso, the storage notice: the letter that tells the sender that his consignment is held.
class RptAvviso : public report::Report
{
public:
    RptAvviso();

protected:
    QString titolo(const QString& numero, const QString& anno) const override;
};

} // namespace giacenza
