#pragma once

#include "registration/ricercaldv.h"
#include "registration/salvagiacenza.h"
#include "screens/consegna.h"
#include "screens/emittenteavviso.h"
#include "screens/particomuni.h"

#include <memory>

namespace giacenza {

/// The registration screen: finds a waybill of a customer, takes date, holding branch and reason, saves the
/// held shipment and has its first notice printed.
class frmGiacenza : public Schermata
{
    Q_OBJECT
    /// A waybill handed over by the host: looked up once all four are set and the screen is shown.
    Q_PROPERTY(QString NLettVett MEMBER mNLettVett)
    Q_PROPERTY(QString DataLdv MEMBER mDataLdv)
    Q_PROPERTY(QString Filiale MEMBER mFiliale)
    Q_PROPERTY(QString CodiceCliente READ codiceCliente WRITE setCodiceCliente)
    /// Kept for hosts that set them; the screen makes no use of them.
    Q_PROPERTY(bool AggiungiGiacenza MEMBER mAggiungiGiacenza)
    Q_PROPERTY(bool ControlloGiacenza MEMBER mControlloGiacenza)
    Q_PROPERTY(int Porto MEMBER mPorto)
    Q_PROPERTY(bool StampaLDV MEMBER mStampaLDV)

public:
    frmGiacenza();
    ~frmGiacenza() override;

    void carica() override;

    QString codiceCliente() const { return mCodiceCliente; }
    /// The last of the four that a host sets: the hand-over waits from here on.
    void setCodiceCliente(const QString& codice);

protected:
    void attivata() override;

private:
    void collega();
    void eseguiConsegna();
    void scegliData();
    ChiaveCaso chiaveAvviso() const;

    std::unique_ptr<Ui::frmGiacenza> mUi;
    PartiComuni mParti;
    RicercaLdv mRicerca;
    EmittenteAvviso mAvviso;
    SalvaGiacenza mSalvataggio;
    Consegna mConsegna{*this, [this] { eseguiConsegna(); }};
    QString mNLettVett;
    QString mDataLdv;
    QString mFiliale;
    QString mCodiceCliente;
    bool mAggiungiGiacenza = false;
    bool mControlloGiacenza = false;
    bool mStampaLDV = false;
    int mPorto = 0;
};

} // namespace giacenza
