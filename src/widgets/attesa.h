#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace giacenza {

/// The waiting pointer, while it lives. Nothing in a program without windows.
class Attesa
{
public:
    Attesa()
    {
        if (mMostrata)
            QGuiApplication::setOverrideCursor(Qt::WaitCursor);
    }
    Attesa(const Attesa&) = delete;
    Attesa& operator=(const Attesa&) = delete;
    ~Attesa()
    {
        if (mMostrata)
            QGuiApplication::restoreOverrideCursor();
    }

private:
    bool mMostrata = qobject_cast<QGuiApplication*>(QCoreApplication::instance()) != nullptr;
};

} // namespace giacenza
