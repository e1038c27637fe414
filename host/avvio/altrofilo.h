#pragma once

#include <QEventLoop>
#include <QThread>

#include <functional>
#include <memory>

namespace deposito {

/// Runs long work in a thread of its own and waits for it while the windows stay alive.
///
/// lavoro: must not throw, nor touch a window.
inline void inAltroFilo(std::function<void()> lavoro)
{
    const std::unique_ptr<QThread> filo(QThread::create(std::move(lavoro)));
    QEventLoop attesa;
    QObject::connect(filo.get(), &QThread::finished, &attesa, &QEventLoop::quit);
    filo->start();
    attesa.exec();
    filo->wait();
}

} // namespace deposito
