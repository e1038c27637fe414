#include "screens/convalida.h"

#include <QApplication>
#include <QFocusEvent>
#include <QPointer>
#include <QScopedValueRollback>
#include <QWidget>

namespace giacenza {

Convalida::Convalida(QWidget* schermata) : QObject(schermata), mSchermata(schermata) {}

void Convalida::aggiungi(QWidget* campo, Verifica verifica)
{
    mVerifiche[campo] = std::move(verifica);
    campo->installEventFilter(this);
}

void Convalida::esenta(QWidget* uscita)
{
    mUscite.append(uscita);
}

Seguito Convalida::verificaCorrente() const
{
    const Verifica verifica = mVerifiche.value(QApplication::focusWidget());
    return verifica && !mSospesa && !mInCorso ? verifica() : Seguito();
}

void Convalida::senzaVerifiche(const std::function<void()>& azione)
{
    const QScopedValueRollback<bool> sospesa(mSospesa, true);
    azione();
}

bool Convalida::daVerificare(const QWidget* campo) const
{
    // Qt has already moved the focus when it tells the field that it lost it.
    return !mSospesa && !mInCorso && campo->isEnabled() && mSchermata->isVisible() &&
           !mUscite.contains(QApplication::focusWidget());
}

bool Convalida::eventFilter(QObject* oggetto, QEvent* evento)
{
    switch (evento->type()) {
    case QEvent::FocusOut: {
        const auto motivo = static_cast<QFocusEvent*>(evento)->reason();
        auto* campo = qobject_cast<QWidget*>(oggetto);
        if (campo && mVerifiche.contains(campo) && motivo != Qt::ActiveWindowFocusReason &&
            motivo != Qt::PopupFocusReason && daVerificare(campo))
            lasciato(campo, motivo);
        return false;
    }
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        return mIngoiaClic && oggetto->isWidgetType();
    default:
        return false;
    }
}

void Convalida::lasciato(QWidget* campo, Qt::FocusReason motivo)
{
    mInCorso = true;
    mMotivo = motivo;
    const Seguito seguito = mVerifiche.value(campo)();
    mMotivo = Qt::NoFocusReason;
    if (!seguito) {
        mInCorso = false;
        return;
    }
    if (motivo == Qt::MouseFocusReason) {
        mIngoiaClic = true;
        qApp->installEventFilter(this);
    }
    QMetaObject::invokeMethod(
        this,
        [this, seguito] {
            qApp->removeEventFilter(this);
            mIngoiaClic = false;
            const QPointer<Convalida> vivo(this);
            seguito();
            if (vivo)
                mInCorso = false;
        },
        Qt::QueuedConnection);
}

} // namespace giacenza
