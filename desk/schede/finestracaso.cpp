#include "desk/schede/finestracaso.h"

#include "desk/schede/parti.h"
#include "widgets/misuraricordata.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace giacenza::schede {

FinestraCaso::FinestraCaso(const Accesso& accesso, const ChiaveGiacenza& caso, const documenti::Carta& carta,
                           QWidget* padre)
    : QDialog(padre), mScheda(new SchedaCaso(accesso, carta, this))
{
    setObjectName(u"finestraCaso"_s);
    setWindowTitle(u"Giacenza %1/%2 — che cosa è successo"_s.arg(caso.numero, QString::number(caso.anno)));
    auto* tutto = new QVBoxLayout(this);
    tutto->addWidget(mScheda);
    QPushButton* chiudi = pulsante(this, u"cmdChiudi"_s, u"&Chiudi"_s, u"Chiude la finestra (Esc)"_s);
    tutto->addWidget(chiudi, 0, Qt::AlignRight);
    connect(chiudi, &QPushButton::clicked, this, &QDialog::reject);
    resize(inCaratteri(*this, 112, 38));
    ricordaMisura(*this, u"diario"_s);
    mScheda->mostra(caso);
}

} // namespace giacenza::schede
