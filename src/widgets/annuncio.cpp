#include "widgets/annuncio.h"

#include <QAccessible>
#include <QEvent>
#include <QWidget>

#include <utility>

namespace giacenza {

namespace {

/// Qt 6.4 has no announcement of its own: the alert is what screen readers read out at once.
void allarma(QWidget* etichetta, const QString& /*testo: they ask for it*/)
{
    QAccessibleEvent allarme(etichetta, QAccessible::Alert);
    QAccessible::updateAccessibility(&allarme);
}

Annunciatore& annunciatore()
{
    static Annunciatore corrente = allarma;
    return corrente;
}

class Comparsa : public QObject
{
public:
    explicit Comparsa(QWidget* etichetta) : QObject(etichetta) { etichetta->installEventFilter(this); }

    bool eventFilter(QObject* oggetto, QEvent* evento) override
    {
        if (evento->type() == QEvent::Show && !evento->spontaneous())
            annuncia(qobject_cast<QWidget*>(oggetto));
        return false;
    }
};

} // namespace

void annuncia(QWidget* etichetta)
{
    QAccessibleInterface* voce = QAccessible::queryAccessibleInterface(etichetta);
    const QString testo = voce ? voce->text(QAccessible::Name) : QString();
    if (etichetta->isVisible() && !testo.isEmpty())
        annunciatore()(etichetta, testo);
}

void impostaAnnunciatore(Annunciatore altro)
{
    annunciatore() = altro ? std::move(altro) : Annunciatore(allarma);
}

void annunciaComparsa(QWidget* etichetta)
{
    new Comparsa(etichetta);
}

} // namespace giacenza
