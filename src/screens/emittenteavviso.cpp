#include "screens/emittenteavviso.h"

#include "base/orologio.h"
#include "data/archivio.h"
#include "data/avviso.h"
#include "database/valori.h"
#include "screens/campi.h"
#include "screens/stampa.h"
#include "screens/stampacaso.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace giacenza {

EmittenteAvviso::EmittenteAvviso(Schermata& schermata, const CasoMostrato& caso, QLabel* dataAvviso,
                                 Differenze differenze)
    : mSchermata(schermata), mCaso(caso), mDataAvviso(dataAvviso), mDifferenze(std::move(differenze))
{}

void EmittenteAvviso::EmettiAvvisoGiacenza(bool ristampa, const QString& descrizione)
{
    const auto didascalie = leggiDidascalie();
    const auto caso = mCaso.chiave();
    if (!caso || (!ristampa && !conta(*caso, descrizione)))
        return;
    stampaCaso(mSchermata, TipoDocumento::avviso, *caso, didascalie,
               {u"Avviso di giacenza %1 prodotto."_s,
                u"L'avviso di giacenza non è stato stampato; la giacenza resta registrata."_s});
}

bool EmittenteAvviso::conta(const ChiaveGiacenza& caso, const QString& descrizione)
{
    if (!mDifferenze.ammesso())
        return false;
    const QDate giorno = oggi();
    const auto numero =
        contaAvviso(mSchermata.connessione(), accessoHost(), mDifferenze.chiave(caso), giorno, descrizione);
    if (numero) {
        scrivi(mDataAvviso, dataSql(giorno));
        mDifferenze.contato(*numero);
    }
    return true;
}

} // namespace giacenza
