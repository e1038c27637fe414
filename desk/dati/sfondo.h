#pragma once

#include <QObject>
#include <QThread>

#include <chrono>
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

    /// Tells all of them to end and waits for that, no longer than given. False: one is still at work, as one
    /// that waits for a server that says nothing; its destructor would wait on, so the program has to go
    /// without.
    static bool fermatiEntro(std::chrono::milliseconds attesa);

private:
    void ferma();

    QThread mThread;
    QObject* mLaggiu; ///< lives in the thread
};

} // namespace giacenza::desk
