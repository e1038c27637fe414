#pragma once

#include "opzioni.h"

#include <giacenza/cGiacenza.h>

#include <QMainWindow>

#include <functional>
#include <memory>

namespace Ui {
class finestraDeposito;
}

namespace deposito {

/// The host's window: asks the component for its screens and says what came of it.
class Finestra : public QMainWindow
{
    Q_OBJECT

public:
    explicit Finestra(const Opzioni& opzioni, QWidget* parent = nullptr);
    ~Finestra() override;

protected:
    void closeEvent(QCloseEvent* evento) override;

private:
    void collega();
    void mostraLogo(const QString& file);
    /// Runs one opening method of the component and shows its failure, if it fails.
    void apri(const QString& schermata, const std::function<void()>& apertura);
    void apriPerLdv();
    void apriRiconsegna(giacenza::cGiacenza::Reso tipo, const QString& schermata);
    void schermataChiusa();
    void mostraMessaggio(const QString& testo);
    void nascondiMessaggio();

    std::unique_ptr<Ui::finestraDeposito> mUi;
    std::unique_ptr<giacenza::cGiacenza> mGiacenza;
    bool mUscitaAnnunciata = false;
};

} // namespace deposito
