#pragma once

#include <QDate>
#include <QDialog>

#include <memory>
#include <optional>

namespace Ui {
class frmCalendario;
}

namespace giacenza {

/// A date picker: a click on a day, Enter on it or the button of today picks and closes. Moving through the
/// days picks nothing, and neither do Esc and the close box.
///
///     frmCalendario calendario(this);
///     calendario.setDataAttuale(leggiData(testo));
///     calendario.exec();
///     if (calendario.scelta()) ... calendario.DataAttuale()
///
/// Where the parent may be destroyed while the dialog is open, make it with new and hold it by a QPointer.
class frmCalendario : public QDialog
{
    Q_OBJECT

public:
    explicit frmCalendario(QWidget* parent = nullptr);
    ~frmCalendario() override;

    /// The date to start from; without one, or with an invalid one, the calendar opens on today.
    void setDataAttuale(std::optional<QDate> giorno);
    /// The day picked; without a pick what was set.
    std::optional<QDate> DataAttuale() const { return mDataAttuale; }
    /// A day was picked since the dialog was shown.
    bool scelta() const { return mScelta; }

protected:
    void showEvent(QShowEvent* evento) override;

private:
    void nominaParti();
    void prendi(QDate giorno);

    std::unique_ptr<Ui::frmCalendario> mUi;
    std::optional<QDate> mDataAttuale;
    bool mScelta = false;
};

} // namespace giacenza
