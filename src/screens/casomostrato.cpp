#include "screens/casomostrato.h"

#include "screens/campi.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace giacenza {

CasoMostrato::CasoMostrato(Schermata& schermata, const QLabel* numero, const DataGiacenza& data)
    : mSchermata(schermata), mNumero(numero), mData(data)
{}

QString CasoMostrato::numero() const
{
    return testo(mNumero);
}

std::optional<ChiaveGiacenza> CasoMostrato::chiave() const
{
    const auto giorno = mData.giorno();
    if (!numero().isEmpty() && giorno)
        return ChiaveGiacenza{numero(), giorno->year()};
    mSchermata.stato(u"Nessuna giacenza sullo schermo: richiamarne una prima."_s);
    return std::nullopt;
}

} // namespace giacenza
