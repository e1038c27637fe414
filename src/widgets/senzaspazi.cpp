#include "widgets/senzaspazi.h"

#include <QEvent>
#include <QLineEdit>

namespace giacenza {

namespace {

class Uscita : public QObject
{
public:
    explicit Uscita(QLineEdit* campo) : QObject(campo) { campo->installEventFilter(this); }

    bool eventFilter(QObject* oggetto, QEvent* evento) override
    {
        if (evento->type() == QEvent::FocusOut)
            togliSpazi(qobject_cast<QLineEdit*>(oggetto));
        return false;
    }
};

} // namespace

bool togliSpazi(QLineEdit* campo)
{
    const QString netto = campo->text().trimmed();
    if (campo->isReadOnly() || netto == campo->text())
        return false;
    campo->setText(netto);
    return true;
}

void togliSpaziUscendo(QLineEdit* campo)
{
    new Uscita(campo);
}

} // namespace giacenza
