#pragma once

#include <QObject>

class QWidget;

namespace giacenza {

/// Fits a working screen's form to its fonts, its palette and the display: fields as wide as their longest
/// value, a window no larger than the display, numbers without blanks around them.
class Disposizione : public QObject
{
public:
    /// schermata: with its form set up; this object's parent.
    explicit Disposizione(QWidget* schermata);

    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    void adatta();
    void adattaFinestra();

    QWidget* mSchermata;
    bool mDaAdattare = false;
    bool mCarattereCambiato = false;
    bool mMostrata = false;
};

} // namespace giacenza
