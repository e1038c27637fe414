#include "widgets/campodata.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include <utility>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

const QString maschera = u"00/00/0000;_"_s;
const QString mascheraVuota = u"__/__/____"_s;

} // namespace

CampoData::CampoData(QWidget* parent) : QLineEdit(parent)
{
    chiediData(true);
}

void CampoData::chiediData(bool perData)
{
    mData = perData;
    mostraEsempio();
    imposta({});
}

void CampoData::mostraEsempio()
{
    // How to type it is for those who can.
    if (isReadOnly())
        setPlaceholderText({});
    else
        setPlaceholderText(mData ? u"gg/mm/aaaa"_s : u"aaaa"_s);
}

bool CampoData::event(QEvent* evento)
{
    if (evento->type() == QEvent::ReadOnlyChange)
        mostraEsempio();
    return QLineEdit::event(evento);
}

QString CampoData::testo() const
{
    // text() drops the mask's blanks and shifts nothing back: only what is displayed tells an incomplete
    // date.
    const QString mostrato = displayText();
    return mostrato == mascheraVuota ? QString() : mostrato;
}

void CampoData::imposta(const QString& giorno)
{
    // Without the mask any text stands as it is: it is only set for typing, over what is there.
    setInputMask(mData && hasFocus() && !isReadOnly() ? maschera : QString());
    setText(giorno);
    // What is typed next is a new date.
    if (hasFocus() && !giorno.isEmpty())
        selectAll();
}

bool CampoData::intera() const
{
    const QString mostrato = testo();
    return !mostrato.isEmpty() && !mostrato.contains(u'_');
}

void CampoData::keyPressEvent(QKeyEvent* evento)
{
    // The mask overwrites digit by digit from the start, and takes nothing at the end: over a whole date the
    // first digit begins a new one. In the middle it corrects the one that is there.
    const QString digitato = evento->text();
    const bool aUnCapo = cursorPosition() == 0 || cursorPosition() == mascheraVuota.size();
    if (mData && !isReadOnly() && !hasSelectedText() && aUnCapo && intera() && digitato.size() == 1 &&
        digitato.front().isDigit() && !(evento->modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)))
        selectAll();
    QLineEdit::keyPressEvent(evento);
}

void CampoData::focusInEvent(QFocusEvent* evento)
{
    const bool appenaMascherato = mData && !isReadOnly() && inputMask().isEmpty();
    if (appenaMascherato) {
        const QString prima = testo();
        setInputMask(maschera);
        setText(prima);
    }
    QLineEdit::focusInEvent(evento);
    mEntratoColMouse = evento->reason() == Qt::MouseFocusReason;
    // A window that comes back finds the field as it was left; the mask's coming loses the place in it.
    if (appenaMascherato ||
        (evento->reason() != Qt::ActiveWindowFocusReason && evento->reason() != Qt::PopupFocusReason)) {
        if (testo().isEmpty())
            setCursorPosition(0);
        else
            selectAll();
    }
}

void CampoData::mousePressEvent(QMouseEvent* evento)
{
    QLineEdit::mousePressEvent(evento);
    // A click into the empty mask would start typing in the middle of the date.
    if (testo().isEmpty())
        setCursorPosition(0);
}

void CampoData::mouseReleaseEvent(QMouseEvent* evento)
{
    QLineEdit::mouseReleaseEvent(evento);
    // The click that came into the field chooses the date, as coming by Tab does; the next one a place in it.
    if (std::exchange(mEntratoColMouse, false) && !hasSelectedText() && !isReadOnly() && intera())
        selectAll();
}

void CampoData::focusOutEvent(QFocusEvent* evento)
{
    if (testo().isEmpty()) {
        setInputMask({});
        clear();
    }
    QLineEdit::focusOutEvent(evento);
}

} // namespace giacenza
