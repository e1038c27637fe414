#pragma once

#include "benchmarks/quadro/esito.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>

namespace banco {

/// Ends the program when a window has been painted, with the time since the process was started.
class Dipinta : public QObject
{
public:
    Dipinta() { qApp->installEventFilter(this); }

    bool eventFilter(QObject* oggetto, QEvent* evento) override
    {
        if (evento->type() == QEvent::Paint && oggetto->isWidgetType() && !mVista) {
            mVista = true;
            // The window is painted whole, children and all, before the loop goes on.
            QTimer::singleShot(0, this,
                               [] { QCoreApplication::exit(stampaEsito(millisecondiDallAvvio(), 1, 1)); });
        }
        return false;
    }

private:
    bool mVista = false;
};

} // namespace banco
