#include "screens/spedizionemostrata.h"

namespace giacenza {

SpedizioneMostrata::SpedizioneMostrata(Schermata& schermata, const MappaSpedizione& mappa,
                                       CampoFiliale& filiale, DataGiacenza& data,
                                       std::function<void(const Recordset&)> rigaMostrata)
    : mSchermata(schermata), mPosti(mappa), mFiliale(filiale), mData(data),
      mRigaMostrata(std::move(rigaMostrata)), mCampi(new CampiSchermata(&schermata, mappa))
{}

bool SpedizioneMostrata::mostra(const QString& istruzione)
{
    Recordset riga;
    riga.apri(mSchermata.connessione(), istruzione);
    if (riga.eof())
        return false;
    CaricaDatiSpedizione(riga, mPosti, *mCampi);
    if (mRigaMostrata)
        mRigaMostrata(riga);
    riga.chiudi();
    mFiliale.leggiNome();
    mData.CalcolaGiorniSosta();
    return true;
}

} // namespace giacenza
