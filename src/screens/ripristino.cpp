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

void Ripristino::ricorda()
{
    if (!eRiempito(mCampo) && !testo(mCampo).isEmpty())
        mTesto = testo(mCampo);
}

bool Ripristino::eventFilter(QObject*, QEvent* evento)
{
    if (evento->type() != QEvent::KeyPress || !pronto() || !testoMostrato(mCampo).isEmpty() ||
        !static_cast<QKeyEvent*>(evento)->matches(QKeySequence::Undo))
        return false;
    scrivi(mCampo, std::exchange(mTesto, {}));
    return true;
}

} // namespace giacenza
