#pragma once

#include <QDate>
#include <QDialog>

#include <memory>

class QLineEdit;

namespace Ui {
class frmRifiuto;
}

namespace giacenza {

/// Records that the recipient refused the consignment: the date and the reason. Closing it in whatever way
/// but cmdAnnulla and Esc confirms: date and reason are checked then, and a wrong one keeps it open.
///
/// Where the parent may be destroyed while the dialog is open, make it with new and hold it by a QPointer.
class frmRifiuto : public QDialog
{
    Q_OBJECT
    Q_PROPERTY(QDate DataRifiuto READ DataRifiuto WRITE setDataRifiuto)
    Q_PROPERTY(QString MotivazioneRifiuto READ MotivazioneRifiuto WRITE setMotivazioneRifiuto)
    Q_PROPERTY(bool Confermato READ Confermato WRITE setConfermato)

public:
    explicit frmRifiuto(QWidget* parent = nullptr);
    ~frmRifiuto() override;

    /// The date of the refusal; set when the dialog closes confirmed.
    QDate DataRifiuto() const { return mDataRifiuto; }
    void setDataRifiuto(QDate giorno) { mDataRifiuto = giorno; }

    /// The reason; cleared when the dialog is shown, set when it closes confirmed.
    QString MotivazioneRifiuto() const { return mMotivazioneRifiuto; }
    void setMotivazioneRifiuto(const QString& motivazione) { mMotivazioneRifiuto = motivazione; }

    /// True only after a confirmed close.
    bool Confermato() const { return mConfermato; }
    void setConfermato(bool confermato) { mConfermato = confermato; }

    /// Every way of closing ends here; esito is what it would be without the checks.
    void done(int esito) override;

protected:
    void showEvent(QShowEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void annulla();
    /// True when date and reason are in order and taken; else the operator was told what is wrong.
    bool conferma();
    void rifiuta(const QString& testo, QLineEdit* campo);

    std::unique_ptr<Ui::frmRifiuto> mUi;
    QDate mDataRifiuto;
    QString mMotivazioneRifiuto;
    bool mConfermato = false;
    bool mAnnullo = false;
    bool mInControllo = false;
};

} // namespace giacenza
