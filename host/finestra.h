#pragma once

#include "opzioni.h"

#include <giacenza/cGiacenza.h>

#include <QIcon>
#include <QMainWindow>

#include <functional>
#include <memory>

namespace Ui {
class finestraDeposito;
}

namespace giacenza::desk {
class FinestraDesk;
}

namespace deposito {

/// The program's icon, for every window.
QIcon icona();

/// The host's window: the desk, and around it what asks the component for its screens and says what came of
/// it.
///
/// The component keeps its screens above all other windows, so this one goes above them as long as it is the
/// one worked in, and when it has something to ask.
class Finestra : public QMainWindow
{
    Q_OBJECT

public:
    explicit Finestra(const Opzioni& opzioni, QWidget* parent = nullptr);
    ~Finestra() override;

protected:
    bool event(QEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;

private:
    void collega();
    /// Puts the desk and its menus in their place.
    void apparecchia(const Opzioni& opzioni);
    /// The line in which a waybill is typed; when it stands there already, the registration of what it holds.
    void scriviLdv();
    /// Runs one opening method of the component and shows its failure, if it fails.
    void apri(const QString& schermata, const std::function<void()>& apertura);
    void apriPerLdv();
    void apriRiconsegna(giacenza::cGiacenza::Reso tipo, const QString& schermata);
    void schermataChiusa();
    void mostraMessaggio(const QString& testo);
    void nascondiMessaggio();
    void sopraLeSchermate(bool sopra);
    /// Brings the window before the operator, wherever it is.
    void vieniAvanti();

    std::unique_ptr<Ui::finestraDeposito> mUi;
    std::unique_ptr<giacenza::cGiacenza> mGiacenza;
    giacenza::desk::FinestraDesk* mDesk = nullptr;
    bool mUscitaAnnunciata = false;
};

} // namespace deposito
