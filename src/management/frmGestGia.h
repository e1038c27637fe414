#pragma once

#include "management/chiusuracaso.h"
#include "management/richiamocaso.h"
#include "screens/consegna.h"
#include "screens/emittenteavviso.h"
#include "screens/particomuni.h"

#include <memory>

namespace giacenza {

/// The management screen: brings up a held shipment, by its number and date or from the list of a customer's,
/// issues and prints again its notice, and closes it.
class frmGestGia : public Schermata
{
    Q_OBJECT
    /// A held shipment handed over by the host: brought up once both are set and the screen is shown.
    Q_PROPERTY(QString DataGiacenza MEMBER mDataGiacenza)
    Q_PROPERTY(QString NumeroGiacenza READ numeroGiacenza WRITE setNumeroGiacenza)

public:
    frmGestGia();
    ~frmGestGia() override;

    void carica() override;

    QString numeroGiacenza() const { return mNumeroGiacenza; }
    /// The last of the two that a host sets: the hand-over waits from here on.
    void setNumeroGiacenza(const QString& numero);

protected:
    void attivata() override;

private:
    void collega();
    void emettiAvviso();
    bool avvisoAmmesso();
    void rigaMostrata(const Recordset& riga);
    /// How many notices the case has, and whether it is closed, in words.
    void mostraStatoCaso();

    std::unique_ptr<Ui::frmGestGia> mUi;
    PartiComuni mParti;
    RichiamoCaso mRichiamo;
    EmittenteAvviso mAvviso;
    ChiusuraCaso mChiusura;
    Consegna mConsegna{*this, [this] { mRichiamo.consegna(mNumeroGiacenza, mDataGiacenza); }};
    QString mNumeroGiacenza;
    QString mDataGiacenza;
    QString mAvvisi; ///< notices issued on the case on the screen; empty: none
};

} // namespace giacenza
