#pragma once

#include "data/chiusura.h"
#include "screens/particomuni.h"

namespace Ui {
class frmGestGia;
}

namespace giacenza {

/// The closure of the held shipment on the management screen: date and days, charges, document.
class ChiusuraCaso
{
public:
    /// scritta: called when the closure date is in the database and on the screen.
    ChiusuraCaso(Schermata& schermata, const Ui::frmGestGia& forma, PartiComuni& parti,
                 std::function<void()> scritta);

    /// A failure ends it where it is; statements that were executed stay. Throws ErroreDatabase and
    /// ErroreConversione.
    void ChiudiGiacenza();

private:
    /// Where the operator wants no costs on the document.
    void nascondiCosti() const;
    void scrivi(const ChiaveGiacenza& caso);
    void CalcolaCostiGiacenza();
    void SalvaCostiGiacenza(const ChiaveSpedizione& ldv, const ImportiGiacenza& importi);

    Schermata& mSchermata;
    const Ui::frmGestGia& mUi;
    PartiComuni& mParti;
    std::function<void()> mScritta;
};

} // namespace giacenza
