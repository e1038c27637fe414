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
    /// What a row filled in, or a case has got, is not kept. conserva: where there is nothing to keep, what
    /// was kept before stays; else it is forgotten.
    void ricorda(bool conserva);

    /// Nothing is brought back any more.
    void dimentica() { mTesto.clear(); }

    /// Whether Ctrl+Z would bring something back: something was kept, and the field is empty.
    bool pronto() const;

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    QWidget* mCampo;
    QString mTesto;
};

} // namespace giacenza
