#include "data/sosta.h"

namespace giacenza {

int giorniSosta(QDate dataGiacenza, std::optional<QDate> dataBuonFine, QDate oggi)
{
    return static_cast<int>(dataGiacenza.daysTo(dataBuonFine.value_or(oggi)));
}

} // namespace giacenza
