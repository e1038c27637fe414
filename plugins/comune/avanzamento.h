#pragma once

#include <QPointer>
#include <QProgressDialog>

#include <memory>

namespace giacenza::comune {

/// How far a long print has come, in a window with a button that gives it up. It shows itself only when the
/// whole is going to take more than about a second, and never for a single page.
class Avanzamento
{
public:
    /// padre: the window over which it opens, may be null; titolo: what is printed; pagine: how many.
    Avanzamento(QWidget* padre, const QString& titolo, int pagine);
    Avanzamento(const Avanzamento&) = delete;
    Avanzamento& operator=(const Avanzamento&) = delete;
    ~Avanzamento();

    /// fatte: pages done, from 0. False when the operator gave the print up.
    bool prosegue(int fatte);

private:
    QPointer<QProgressDialog> mFinestra; ///< gone with padre: the print then goes on without it
};

} // namespace giacenza::comune
