#include "dialogs/frmCalendario.h"

#include "ui_frmCalendario.h"

#include "base/orologio.h"
#include "widgets/secondoclic.h"

#include <QShortcut>
#include <QShowEvent>
#include <QTextCharFormat>

namespace giacenza {

frmCalendario::frmCalendario(QWidget* parent) : QDialog(parent), mUi(std::make_unique<Ui::frmCalendario>())
{
    mUi->setupUi(this);
    connect(mUi->Calendario, &QCalendarWidget::clicked, this, &frmCalendario::prendi);
    connect(mUi->Calendario, &QCalendarWidget::activated, this, &frmCalendario::prendi);
    connect(mUi->cmdReset, &QPushButton::clicked, this, [this] { prendi(oggi()); });
    // The calendar keeps Esc for itself.
    connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this, &QDialog::reject);
    setDataAttuale({});
}

frmCalendario::~frmCalendario() = default;

void frmCalendario::setDataAttuale(std::optional<QDate> giorno)
{
    mDataAttuale = giorno && giorno->isValid() ? giorno : std::nullopt;
    mUi->Calendario->setSelectedDate(mDataAttuale.value_or(oggi()));
}

void frmCalendario::prendi(QDate giorno)
{
    // One click may be told as a click and as an activation.
    if (mScelta)
        return;
    mScelta = true;
    mDataAttuale = giorno;
    ignoraSecondoClic();
    accept();
}

void frmCalendario::showEvent(QShowEvent* evento)
{
    if (!evento->spontaneous()) {
        mScelta = false;
        mUi->Calendario->setSelectedDate(mDataAttuale.value_or(oggi()));
        mUi->Calendario->setDateTextFormat({}, {});
        QTextCharFormat segnato;
        segnato.setFontUnderline(true);
        segnato.setFontWeight(QFont::Bold);
        mUi->Calendario->setDateTextFormat(oggi(), segnato);
        mUi->Calendario->setFocus();
    }
    QDialog::showEvent(evento);
}

} // namespace giacenza
