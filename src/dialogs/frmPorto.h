#pragma once

#include "database/connessione.h"

#include <QDialog>

#include <memory>

namespace Ui {
class frmPorto;
}

namespace giacenza {

/// Asks the freight terms of a new waybill, whether the held shipment is to be tested first, and whether the
/// waybill is to be printed. Its three properties are taken at every closing; annullato() tells whether the
/// operator gave the issue up.
///
/// Where the parent may be destroyed while the dialog is open, make it with new and hold it by a QPointer.
class frmPorto : public QDialog
{
    Q_OBJECT
    Q_PROPERTY(qint32 Porto READ Porto WRITE setPorto)
    Q_PROPERTY(bool ControlloGiacenza READ ControlloGiacenza WRITE setControlloGiacenza)
    Q_PROPERTY(bool StampaLDV READ StampaLDV WRITE setStampaLDV)
    Q_PROPERTY(bool annullato READ annullato)

public:
    explicit frmPorto(QWidget* parent = nullptr);
    ~frmPorto() override;

    /// The number of the freight terms chosen. With none chosen it stays what it was, 0 in a new dialog;
    /// terms whose number is none give 0.
    qint32 Porto() const { return mPorto; }
    void setPorto(qint32 porto) { mPorto = porto; }

    /// The held shipment is to be tested before the issue.
    bool ControlloGiacenza() const { return mControlloGiacenza; }
    void setControlloGiacenza(bool controllo) { mControlloGiacenza = controllo; }

    /// The new waybill is to be printed.
    bool StampaLDV() const { return mStampaLDV; }
    void setStampaLDV(bool stampa) { mStampaLDV = stampa; }

    /// Closed by cmdAnnulla or Esc: nothing is to be issued. The close box confirms, as cmdEsci does.
    bool annullato() const { return mAnnullato; }

    void done(int esito) override;

protected:
    void showEvent(QShowEvent* evento) override;
    void keyPressEvent(QKeyEvent* evento) override;

private:
    void annulla();
    void caricaElenco();
    void stato(const QString& testo, const QString& parole = {});

    std::unique_ptr<Ui::frmPorto> mUi;
    Connessione mConnessione;
    qint32 mPorto = 0;
    bool mControlloGiacenza = false;
    bool mStampaLDV = false;
    bool mAnnullato = false;
};

} // namespace giacenza
