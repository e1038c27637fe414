#pragma once

#include "screens/schermatacaso.h"

#include <array>
#include <memory>

namespace Ui {
class frmGiacenza;
}

namespace giacenza {

/// The registration screen: finds a waybill of a customer, takes date, holding branch and reason, saves the
/// held shipment and has its first notice printed.
class frmGiacenza : public SchermataCaso
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

    QString codiceCliente() const { return mCodiceCliente; }
    /// The last of the four that a host sets: the hand-over waits from here on.
    void setCodiceCliente(const QString& codice);

protected:
    void attivata() override;
    void clienteCercato() override;
    ChiaveCaso chiaveAvviso(const ChiaveGiacenza& caso) const override;

private:
    enum class Chiave
    {
        numero,
        riferimento
    };

    void collega();
    void eseguiConsegna();
    void PulisciCampi();

    Seguito lascia(Chiave chiave);
    void ricerca(Chiave chiave);
    void ricercaDiretta(Chiave chiave, QDate giorno);
    bool ControllaImmissione(Chiave chiave);
    void RicercaSpedizione(Chiave chiave);
    void scegliData();
    QLineEdit* campo(Chiave chiave) const;
    CampoData* campoData(Chiave chiave) const;
    QString cercato(Chiave chiave) const;
    void mostra(const QString& istruzione, const QString& nonTrovata);
    void segnaGiacenza(bool giacente);

    void salva();
    void inserisci();

    std::unique_ptr<Ui::frmGiacenza> mUi;
    QString mNLettVett;
    QString mDataLdv;
    QString mFiliale;
    QString mCodiceCliente;
    bool mConsegnaPendente = false;
    /// Of each key: whether it was typed in since the last lookup, of whichever.
    std::array<bool, 2> mModificata{};
    bool mAggiungiGiacenza = false;
    bool mControlloGiacenza = false;
    bool mStampaLDV = false;
    int mPorto = 0;
};

} // namespace giacenza
