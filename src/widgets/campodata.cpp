#include "widgets/campodata.h"

#include <QFocusEvent>
#include <QMouseEvent>

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

void CampoData::focusOutEvent(QFocusEvent* evento)
{
    if (testo().isEmpty()) {
        setInputMask({});
        clear();
    }
    QLineEdit::focusOutEvent(evento);
}

} // namespace giacenza
