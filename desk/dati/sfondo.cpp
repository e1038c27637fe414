#include "desk/dati/sfondo.h"

namespace giacenza::desk {

Sfondo::Sfondo() : mLaggiu(new QObject)
{
    mLaggiu->moveToThread(&mThread);
    // Deleted in the thread that it lives in, and what waits for it is dropped with it.
    QObject::connect(&mThread, &QThread::finished, mLaggiu, &QObject::deleteLater);
    mThread.setObjectName("desk");
    mThread.start();
}

Sfondo::~Sfondo()
{
    mThread.requestInterruption();
    mThread.quit();
    mThread.wait();
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
