#pragma once

#include <QHash>
#include <QObject>

#include <functional>

class QWidget;

namespace giacenza {

/// What is still to be done when a field was left: show a refusal, open a dialog. Empty when all is well.
using Seguito = std::function<void()>;

/// Checks a field; does at once what needs no dialog and gives back what does.
using Verifica = std::function<Seguito()>;

/// Runs the checks of a screen's fields when they lose the focus.
///
/// A check does not run when the focus leaves because another window or a popup came, because the program
/// disabled the field, or because the operator leaves the screen. What a check gives back runs once the focus
/// has moved; the click that moved it is swallowed, so that the button under it does not act on what was
/// refused.
class Convalida : public QObject
{
    Q_OBJECT

public:
    /// schermata: the screen, and this object's parent.
    explicit Convalida(QWidget* schermata);

    void aggiungi(QWidget* campo, Verifica verifica);

    /// A control that leaves the screen: going to it checks nothing.
    void esenta(QWidget* uscita);

    /// The check of the field that has the focus: what a shortcut, which moves no focus, must run first.
    Seguito verificaCorrente() const;

    /// Inside a check: whether the operator goes on to the next field by Tab. Then a screen may choose
    /// another one; a click, or a key that names a field, has chosen already.
    bool conTab() const { return mMotivo == Qt::TabFocusReason; }

    /// Does what moves the focus, without the field that loses it being checked.
    void senzaVerifiche(const std::function<void()>& azione);

    /// From now on nothing is checked: the screen closes.
    void sospendi() { mSospesa = true; }

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    bool daVerificare(const QWidget* campo) const;
    void lasciato(QWidget* campo, Qt::FocusReason motivo);

    QWidget* mSchermata;
    QHash<const QObject*, Verifica> mVerifiche;
    QList<const QWidget*> mUscite;
    Qt::FocusReason mMotivo = Qt::NoFocusReason;
    bool mSospesa = false;
    bool mInCorso = false;
    bool mIngoiaClic = false;
};

} // namespace giacenza
