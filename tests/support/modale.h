#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QTimer>
#include <QWidget>

#include <exception>
#include <functional>

namespace giacenza::prove {

/// Does something in the modal window that the next call opens, inside its event loop, once it is there.
///
///     QuandoAperta<frmRicerca> intanto([](frmRicerca& finestra) { QTest::keyClick(&finestra,
///     Qt::Key_Escape); }); ApriRicerca(...);
///
/// The test fails when the action throws and when no window of the class was opened. A window that the action
/// leaves open is closed after some seconds, with a failure.
template<class Finestra>
class QuandoAperta : public QObject
{
public:
    using Azione = std::function<void(Finestra& finestra)>;

    explicit QuandoAperta(Azione azione) : mAzione(std::move(azione))
    {
        QTimer::singleShot(0, this, &QuandoAperta::guarda);
    }

    ~QuandoAperta() override
    {
        if (!mVista)
            ADD_FAILURE() << "Nessuna finestra " << Finestra::staticMetaObject.className()
                          << " è stata aperta.";
    }

private:
    void guarda()
    {
        auto* finestra = qobject_cast<Finestra*>(QApplication::activeModalWidget());
        if (!finestra) {
            // What opens it may be queued behind this.
            QTimer::singleShot(1, this, &QuandoAperta::guarda);
            return;
        }
        mVista = true;
        // Shortcuts belong to the window that is active, which on some platforms this one is only in a
        // moment.
        finestra->activateWindow();
        QCoreApplication::processEvents();
        QTimer::singleShot(secondiMassimi * 1000, finestra, [finestra] {
            ADD_FAILURE() << "La finestra è rimasta aperta.";
            finestra->hide(); // not delete: the test may own it
        });
        try {
            mAzione(*finestra);
        } catch (const std::exception& errore) {
            ADD_FAILURE() << errore.what();
        }
    }

    static constexpr int secondiMassimi = 10;
    Azione mAzione;
    bool mVista = false;
};

} // namespace giacenza::prove
