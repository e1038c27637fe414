#include "screens/datagiacenza.h"

#include "base/orologio.h"
#include "data/sosta.h"
#include "database/valori.h"
#include "screens/campi.h"
#include "screens/rifiuto.h"
#include "widgets/campodata.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace giacenza {

DataGiacenza::DataGiacenza(Schermata& schermata, const Controlli& controlli)
    : mSchermata(schermata), mControlli(controlli)
{
    schermata.convalida().aggiungi(mControlli.data, [this] { return convalida(); });
}

std::optional<QDate> DataGiacenza::giorno() const
{
    return leggiData(testo(mControlli.data));
}

void DataGiacenza::CalcolaGiorniSosta()
{
    if (const auto inizio = giorno())
        scrivi(mControlli.giorniSosta,
               QString::number(giorniSosta(*inizio, leggiData(testo(mControlli.dataBuonFine)), oggi())));
}

Seguito DataGiacenza::convalida()
{
    const QString digitata = testo(mControlli.data);
    if (!digitata.isEmpty() && !eData(digitata))
        return rifiuta(mSchermata, mControlli.data, u"Controllare l'immissione della data giacenza."_s,
                       Stile::avviso);
    CalcolaGiorniSosta();
    return {};
}

} // namespace giacenza
