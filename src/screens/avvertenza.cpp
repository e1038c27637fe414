#include "screens/avvertenza.h"

#include "screens/campi.h"

#include <QLabel>

using namespace Qt::StringLiterals;

namespace giacenza {

Avvertenza::Avvertenza(QWidget* campo, QLabel* etichetta) : mCampo(campo), mEtichetta(etichetta)
{
    mostra({});
}

void Avvertenza::mostra(const QString& parole)
{
    if (!mEtichetta)
        return;
    mEtichetta->setText(parole.isEmpty() ? QString() : u"⚠ "_s + parole);
    mEtichetta->setVisible(!parole.isEmpty());
    mCampo->setAccessibleDescription(parole);
    if (mCampo->property("avvertenza").toBool() == !parole.isEmpty())
        return;
    mCampo->setProperty("avvertenza", !parole.isEmpty());
    rinnovaAspetto(mCampo);
}

} // namespace giacenza
