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

    /// Says in the status line what became of the lookup, and that the branch's name was not read when it was
    /// not.
    void stato(const QString& detto);

    CampiSchermata& campi() { return *mCampi; }

private:
    Schermata& mSchermata;
    PostiSpedizione mPosti;
    CampoFiliale& mFiliale;
    DataGiacenza& mData;
    std::function<void(const Recordset&)> mRigaMostrata;
    CampiSchermata* mCampi;
    std::optional<ErroreDatabase> mSenzaNome;
};

} // namespace giacenza
