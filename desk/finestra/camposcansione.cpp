#include "desk/finestra/camposcansione.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QTextEdit>

using namespace Qt::StringLiterals;

namespace giacenza::desk {

namespace {

constexpr int lunghezza = 100;

/// A field that takes characters itself.
bool prendeTesto(const QWidget* controllo)
{
    if (const auto* riga = qobject_cast<const QLineEdit*>(controllo))
        return !riga->isReadOnly();
    if (const auto* blocco = qobject_cast<const QPlainTextEdit*>(controllo))
        return !blocco->isReadOnly();
    if (const auto* blocco = qobject_cast<const QTextEdit*>(controllo))
        return !blocco->isReadOnly();
    return controllo->inherits("QAbstractSpinBox");
}

/// Space presses a button, opens a list and marks a row.
bool vuoleLoSpazio(const QWidget* controllo)
{
    return qobject_cast<const QAbstractButton*>(controllo) || qobject_cast<const QComboBox*>(controllo) ||
           qobject_cast<const QAbstractItemView*>(controllo);
}

} // namespace

bool scriveUnCarattere(const QKeyEvent& tasto)
{
    constexpr auto comandi = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const QString testo = tasto.text();
    return !(tasto.modifiers() & comandi) && !testo.isEmpty() && testo.at(0).isPrint();
}

CampoScansione::CampoScansione(QWidget* padre) : QLineEdit(padre)
{
    setObjectName(u"txtCerca"_s);
    setMaxLength(lunghezza);
    setClearButtonEnabled(true);
    setPlaceholderText(u"Cerca o scansiona: LDV, giacenza (231 o 231/2026), riferimento del cliente"_s);
    setAccessibleName(u"Cerca o scansiona"_s);
    setAccessibleDescription(
        u"Numero di una lettera di vettura, di una giacenza, o riferimento del cliente"_s);
    connect(this, &QLineEdit::returnPressed, this, [this] { Q_EMIT chiesto(text()); });
    connect(this, &QLineEdit::textEdited, this, [this] { mDaCapo = false; });
    qApp->installEventFilter(this);
}

CampoScansione::~CampoScansione()
{
    qApp->removeEventFilter(this);
}

void CampoScansione::cercato()
{
    mDaCapo = true;
    selectAll();
}

bool CampoScansione::miSpetta(const QWidget* destinatario, const QKeyEvent& tasto) const
{
    if (destinatario == this || destinatario->window() != window() || !isVisible() || !isEnabled() ||
        !scriveUnCarattere(tasto))
        return false;
    if (QApplication::activeModalWidget() || QApplication::activePopupWidget())
        return false;
    return !prendeTesto(destinatario) && !(tasto.text() == u" "_s && vuoleLoSpazio(destinatario));
}

bool CampoScansione::eventFilter(QObject* oggetto, QEvent* evento)
{
    if (evento->type() != QEvent::KeyPress)
        return QLineEdit::eventFilter(oggetto, evento);
    const auto* destinatario = qobject_cast<QWidget*>(oggetto);
    const auto* tasto = static_cast<const QKeyEvent*>(evento);
    if (!destinatario || !miSpetta(destinatario, *tasto))
        return QLineEdit::eventFilter(oggetto, evento);
    prendi(*tasto);
    return true;
}

void CampoScansione::prendi(const QKeyEvent& tasto)
{
    setFocus(Qt::OtherFocusReason);
    QKeyEvent mio(QEvent::KeyPress, tasto.key(), tasto.modifiers(), tasto.text(), tasto.isAutoRepeat());
    QCoreApplication::sendEvent(this, &mio);
}

void CampoScansione::focusInEvent(QFocusEvent* evento)
{
    QLineEdit::focusInEvent(evento);
    if (mDaCapo)
        selectAll();
}

} // namespace giacenza::desk
