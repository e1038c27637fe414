#pragma once

#include <QObject>

class QWidget;

namespace giacenza {

/// What the clerk had typed in a field that a lookup cleared: Ctrl+Z in the empty field brings it back, once.
class Ripristino : public QObject
{
    Q_OBJECT

public:
    /// campo: the field, and this object's parent.
    explicit Ripristino(QWidget* campo);

    /// Keeps what the field holds, if the clerk put it there; to be called just before the field is cleared.
    /// What a row filled in is not kept, and an empty field leaves what was kept before.
    void ricorda();

    /// Whether there is something to bring back.
    bool pronto() const { return !mTesto.isEmpty(); }

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    QWidget* mCampo;
    QString mTesto;
};

} // namespace giacenza
