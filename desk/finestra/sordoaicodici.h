#pragma once

#include <QObject>

namespace giacenza::desk {

/// Keeps what a scanner types, characters and Enter, from doing anything in a window that has no field for
/// it. Keys with Ctrl or Alt, arrows, Tab and Esc do what they do everywhere; Space presses the button that
/// has the focus.
class SordoAiCodici : public QObject
{
    Q_OBJECT

public:
    /// finestra: the window, and the owner.
    explicit SordoAiCodici(QWidget* finestra);
    ~SordoAiCodici() override;

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    QWidget* mFinestra;
};

} // namespace giacenza::desk
