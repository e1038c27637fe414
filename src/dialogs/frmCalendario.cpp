#include "dialogs/frmCalendario.h"

#include "ui_frmCalendario.h"

#include "base/orologio.h"
#include "widgets/secondoclic.h"

#include <QShortcut>
#include <QShowEvent>
#include <QTextCharFormat>

using namespace Qt::StringLiterals;

namespace giacenza {

frmCalendario::frmCalendario(QWidget* parent) : QDialog(parent), mUi(std::make_unique<Ui::frmCalendario>())
{
    mUi->setupUi(this);
    connect(mUi->Calendario, &QCalendarWidget::clicked, this, &frmCalendario::prendi);
    connect(mUi->Calendario, &QCalendarWidget::activated, this, &frmCalendario::prendi);
    connect(mUi->cmdReset, &QPushButton::clicked, this, [this] { prendi(oggi()); });
    // The calendar keeps Esc for itself.
    connect(new QShortcut(QKeySequence::Cancel, this), &QShortcut::activated, this, &QDialog::reject);
    nominaParti();
    setDataAttuale({});
}

void frmCalendario::nominaParti()
{
    // The calendar leaves its own controls without a name to read out.
    const std::pair<QString, QString> nomi[] = {{u"qt_calendar_prevmonth"_s, u"Mese precedente"_s},
                                                {u"qt_calendar_nextmonth"_s, u"Mese seguente"_s},
                                                {u"qt_calendar_monthbutton"_s, u"Mese"_s},
                                                {u"qt_calendar_yearbutton"_s, u"Anno"_s},
                                                {u"qt_calendar_yearedit"_s, u"Anno da scrivere"_s},
                                                {u"qt_calendar_calendarview"_s, u"Giorni del mese"_s}};
    for (const auto& [oggetto, nome] : nomi)
        if (auto* parte = mUi->Calendario->findChild<QWidget*>(oggetto))
            parte->setAccessibleName(nome);
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
