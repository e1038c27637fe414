#pragma once

#include "data/istruzioni.h"
#include "screens/datagiacenza.h"

namespace giacenza {

/// The held shipment on the screen: its number, and the year of its date.
class CasoMostrato
{
public:
    CasoMostrato(Schermata& schermata, const QLabel* numero, const DataGiacenza& data);

    /// Its number, empty when there is none.
    QString numero() const;

    /// Nothing, and the status line says so, when there is none.
    std::optional<ChiaveGiacenza> chiave() const;

private:
    Schermata& mSchermata;
    const QLabel* mNumero;
    const DataGiacenza& mData;
};

} // namespace giacenza
