#pragma once

#include <QDialog>
#include <QStringList>

#include <memory>
#include <optional>

class QSortFilterProxyModel;
class RigheTabella;

namespace Ui {
class frmRicercaTabella;
}

/// The list out of which the operator takes a row: typing narrows it, arrows move, Enter or a double click
/// takes, Esc leaves.
class frmRicercaTabella : public QDialog
{
    Q_OBJECT

public:
    frmRicercaTabella(std::unique_ptr<RigheTabella> righe, const QString& titolo, QWidget* parent);
    ~frmRicercaTabella() override;

    /// The values of the row taken; nothing without one.
    const std::optional<QStringList>& scelta() const { return mScelta; }

protected:
    bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
    void collega();
    void filtra(const QString& testo);
    void segnaPrima();
    void aggiornaStato();
    void prendi();

    std::unique_ptr<Ui::frmRicercaTabella> mUi;
    std::unique_ptr<RigheTabella> mRighe;
    QSortFilterProxyModel* mFiltrate;
    QString mInterruzione; ///< the driver's words
    std::optional<QStringList> mScelta;
};
