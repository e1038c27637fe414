#include "desk/finestra/sordoaicodici.h"

#include "desk/finestra/camposcansione.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>

namespace giacenza::desk {

namespace {

bool conclude(const QKeyEvent& tasto)
{
    return (tasto.key() == Qt::Key_Return || tasto.key() == Qt::Key_Enter) &&
           !(tasto.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
}

} // namespace

SordoAiCodici::SordoAiCodici(QWidget* finestra) : QObject(finestra), mFinestra(finestra)
{
    qApp->installEventFilter(this);
}

SordoAiCodici::~SordoAiCodici()
{
    qApp->removeEventFilter(this);
}

bool SordoAiCodici::eventFilter(QObject* oggetto, QEvent* evento)
{
    const auto* destinatario = qobject_cast<QWidget*>(oggetto);
    if (evento->type() != QEvent::KeyPress || !destinatario || destinatario->window() != mFinestra)
        return QObject::eventFilter(oggetto, evento);
    const auto& tasto = *static_cast<const QKeyEvent*>(evento);
    if (tasto.key() == Qt::Key_Space && qobject_cast<const QAbstractButton*>(destinatario))
        return QObject::eventFilter(oggetto, evento);
    return conclude(tasto) || scriveUnCarattere(tasto) || QObject::eventFilter(oggetto, evento);
}

} // namespace giacenza::desk
