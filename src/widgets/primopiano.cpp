#include "widgets/primopiano.h"

#include <QWidget>
#include <QWindow>

namespace giacenza {

void SempreInPrimoPiano(QWidget* finestra, bool primoPiano)
{
    // Through the native window: the widget's own call would hide it and show it again, and its activation
    // would call here once more.
    if (QWindow* nativa = finestra->windowHandle())
        nativa->setFlag(Qt::WindowStaysOnTopHint, primoPiano);
}

} // namespace giacenza
