#include "desk/dati/sfondo.h"

#include <QDeadlineTimer>

#include <algorithm>
#include <mutex>
#include <vector>

namespace giacenza::desk {

namespace {

/// Those that live, of every thread.
struct Vivi
{
    std::mutex guardia;
    std::vector<Sfondo*> tutti;
};

Vivi& vivi()
{
    static Vivi questi;
    return questi;
}

} // namespace

Sfondo::Sfondo() : mLaggiu(new QObject)
{
    mLaggiu->moveToThread(&mThread);
    // Deleted in the thread that it lives in, and what waits for it is dropped with it.
    QObject::connect(&mThread, &QThread::finished, mLaggiu, &QObject::deleteLater);
    mThread.setObjectName("desk");
    mThread.start();
    const std::lock_guard presi(vivi().guardia);
    vivi().tutti.push_back(this);
}

Sfondo::~Sfondo()
{
    {
        const std::lock_guard presi(vivi().guardia);
        std::erase(vivi().tutti, this);
    }
    ferma();
    mThread.wait();
}

void Sfondo::ferma()
{
    mThread.requestInterruption();
    mThread.quit();
}

bool Sfondo::fermatiEntro(std::chrono::milliseconds attesa)
{
    const std::lock_guard presi(vivi().guardia);
    const std::vector<Sfondo*>& tutti = vivi().tutti;
    const QDeadlineTimer fine(attesa);
    for (Sfondo* sfondo : tutti)
        sfondo->ferma();
    return std::all_of(tutti.begin(), tutti.end(),
                       [&](Sfondo* sfondo) { return sfondo->mThread.wait(fine); });
}

void Sfondo::esegui(std::function<void()> lavoro)
{
    QMetaObject::invokeMethod(
        mLaggiu,
        [this, lavoro = std::move(lavoro)] {
            if (!mThread.isInterruptionRequested())
                lavoro();
        },
        Qt::QueuedConnection);
}

} // namespace giacenza::desk
