#pragma once

#include "screens/campi.h"
#include "screens/campofiliale.h"
#include "screens/datagiacenza.h"

namespace giacenza {

/// The shipment on the screen: filled from the first row of a lookup.
class SpedizioneMostrata
{
public:
    /// rigaMostrata: given the row that the screen was just filled from, for what it shows besides.
    SpedizioneMostrata(Schermata& schermata, const MappaSpedizione& mappa, CampoFiliale& filiale,
                       DataGiacenza& data, std::function<void(const Recordset&)> rigaMostrata);

    /// Runs a lookup and fills the screen. Returns false, with the screen as it is, when there is no row.
    /// Throws ErroreDatabase.
    bool mostra(const QString& istruzione);

    CampiSchermata& campi() { return *mCampi; }

private:
    Schermata& mSchermata;
    PostiSpedizione mPosti;
    CampoFiliale& mFiliale;
    DataGiacenza& mData;
    std::function<void(const Recordset&)> mRigaMostrata;
    CampiSchermata* mCampi;
};

} // namespace giacenza
