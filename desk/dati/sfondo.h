#pragma once

#include <QObject>
#include <QThread>

#include <functional>

namespace giacenza::desk {

/// A thread of the desk's own: what it is given runs there, one thing after the other.
class Sfondo
{
public:
    Sfondo();
    Sfondo(const Sfondo&) = delete;
    Sfondo& operator=(const Sfondo&) = delete;
    /// Waits for what is running; what waits behind it is not begun.
    ~Sfondo();

    /// lavoro: must not throw.
    void esegui(std::function<void()> lavoro);

private:
    QThread mThread;
    QObject* mLaggiu; ///< lives in the thread
};

} // namespace giacenza::desk
