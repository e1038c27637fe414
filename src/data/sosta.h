#pragma once

#include <QDate>

#include <optional>

namespace giacenza {

/// Whole calendar days from the day the goods were put in storage to the closure, or to oggi while the case
/// is open; negative when the shipment was put in storage after that.
///
/// dataBuonFine: the closure date, nothing while the case is open.
int giorniSosta(QDate dataGiacenza, std::optional<QDate> dataBuonFine, QDate oggi);

} // namespace giacenza
