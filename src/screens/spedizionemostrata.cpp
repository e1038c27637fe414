#include "screens/spedizionemostrata.h"

using namespace Qt::StringLiterals;

namespace giacenza {

SpedizioneMostrata::SpedizioneMostrata(Schermata& schermata, const MappaSpedizione& mappa,
                                       CampoFiliale& filiale, DataGiacenza& data,
                                       std::function<void(const Recordset&)> rigaMostrata)
    : mSchermata(schermata), mPosti(mappa), mFiliale(filiale), mData(data),
      mRigaMostrata(std::move(rigaMostrata)), mCampi(new CampiSchermata(&schermata, mappa))
{}

bool SpedizioneMostrata::mostra(const QString& istruzione)
{
    mSenzaNome.reset();
    Recordset riga;
    riga.apri(mSchermata.connessione(), istruzione);
    if (riga.eof())
        return false;
    CaricaDatiSpedizione(riga, mPosti, *mCampi);
    if (mRigaMostrata)
        mRigaMostrata(riga);
    riga.chiudi();
    mSenzaNome = mFiliale.leggiNome();
    mData.CalcolaGiorniSosta();
    return true;
}

void SpedizioneMostrata::stato(const QString& detto)
{
    mSchermata.stato(detto);
    if (mSenzaNome)
        mSchermata.aggiungiGuasto(*mSenzaNome, u"Il nome della filiale non si legge. "_s);
}

} // namespace giacenza
