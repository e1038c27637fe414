#include "screens/ripristino.h"

#include "screens/campi.h"

#include <QKeyEvent>
#include <QWidget>

#include <utility>

namespace giacenza {

Ripristino::Ripristino(QWidget* campo) : QObject(campo), mCampo(campo)
{
    campo->installEventFilter(this);
}

void Ripristino::ricorda(bool conserva)
{
    if (!eRiempito(mCampo) && !testo(mCampo).isEmpty())
        mTesto = testo(mCampo);
    else if (!conserva)
        dimentica();
}

bool Ripristino::pronto() const
{
    return !mTesto.isEmpty() && testoMostrato(mCampo).isEmpty();
}

bool Ripristino::eventFilter(QObject*, QEvent* evento)
{
    if (evento->type() != QEvent::KeyPress || !pronto() ||
        !static_cast<QKeyEvent*>(evento)->matches(QKeySequence::Undo))
        return false;
    scrivi(mCampo, std::exchange(mTesto, {}));
    return true;
}

} // namespace giacenza
