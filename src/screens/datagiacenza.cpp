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

namespace {

/// Days after which a held date is more likely a slip of the year or the month than a case.
constexpr qint64 giorniRemoti = 90;

} // namespace

DataGiacenza::DataGiacenza(Schermata& schermata, const Controlli& controlli)
    : mSchermata(schermata), mControlli(controlli), mAvvertenza(controlli.data, controlli.avvertenza)
{
    QObject::connect(mControlli.data, &QLineEdit::textChanged, &schermata, [this] { avverti(); });
    quandoCambiaAvanzo(mControlli.data, [this] { avverti(); });
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

void DataGiacenza::avverti()
{
    const auto inizio = giorno();
    const qint64 giorni = inizio ? inizio->daysTo(oggi()) : 0;
    mAvvertenza.mostra(giorni < 0              ? u"data futura"_s
                       : giorni > giorniRemoti ? u"%1 giorni fa"_s.arg(giorni)
                                               : QString());
}

void DataGiacenza::sostituisciAvanzo()
{
    if (!eAvanzo(mControlli.data))
        return;
    scrivi(mControlli.data, dataBreve(oggi()));
    CalcolaGiorniSosta();
}

bool DataGiacenza::rifiutata()
{
    const Seguito rifiuto = convalida();
    if (rifiuto)
        rifiuto();
    return static_cast<bool>(rifiuto);
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
