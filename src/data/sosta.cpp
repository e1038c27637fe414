#include "data/sosta.h"

#include "database/valori.h"

namespace giacenza {

int giorniSosta(QDate dataGiacenza, const QString& dataBuonFine, QDate oggi)
{
    return static_cast<int>(dataGiacenza.daysTo(leggiData(dataBuonFine).value_or(oggi)));
}

} // namespace giacenza
