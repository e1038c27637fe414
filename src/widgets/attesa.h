#pragma once

#include <QPointer>
#include <QString>

class QLabel;

namespace giacenza {

/// The waiting pointer, while it lives, and the words in a line, if one is given. Nothing in a program
/// without windows.
///
/// The words are painted at once, since nothing else will be until the wait is over. At its end the line says
/// again what it said, or what it was given meanwhile, and that is painted at once too, not with the next
/// frame.
class Attesa
{
public:
    explicit Attesa(QLabel* riga = nullptr);
    Attesa(const Attesa&) = delete;
    Attesa& operator=(const Attesa&) = delete;
    ~Attesa();

private:
    bool mMostrata;
    QPointer<QLabel> mRiga;
    QString mPrima; ///< what the line said
};

} // namespace giacenza
