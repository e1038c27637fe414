#include "widgets/annuncio.h"

#include <QAccessible>
#include <QEvent>
#include <QWidget>

namespace giacenza {

namespace {

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
    // Qt 6.4 has no announcement of its own: the alert is what screen readers read out at once.
    const QAccessibleInterface* voce = QAccessible::queryAccessibleInterface(etichetta);
    if (!voce || !etichetta->isVisible() || voce->text(QAccessible::Name).isEmpty())
        return;
    QAccessibleEvent allarme(etichetta, QAccessible::Alert);
    QAccessible::updateAccessibility(&allarme);
}

void annunciaComparsa(QWidget* etichetta)
{
    new Comparsa(etichetta);
}

} // namespace giacenza
