#pragma once

#include "redelivery/emissionericonsegna.h"
#include "screens/consegna.h"
#include "screens/elencospedizioni.h"
#include "screens/particomuni.h"

#include <memory>

namespace giacenza {

/// The re-delivery screen: shows a held shipment and has the host issue the waybill that follows it, to the
/// recipient or back to the sender, as the host chose. One screen issues at most once.
class frmRiconsegna : public Schermata
{
    Q_OBJECT
    /// A waybill that is held, handed over by the host: looked up once all three are set and the screen is
    /// shown.
    Q_PROPERTY(QString NLettVett MEMBER mNLettVett)
    Q_PROPERTY(QString DataLdv MEMBER mDataLdv)
    /// The waybill's branch and the held shipment that are meant, for this hand-over alone; empty: whichever
    /// are found.
    Q_PROPERTY(QString Filiale MEMBER mFilialeLdv)
    Q_PROPERTY(QString NumeroGiacenza MEMBER mNumeroGiacenza)
    Q_PROPERTY(QString CodiceCliente READ codiceCliente WRITE setCodiceCliente)

public:
    frmRiconsegna();
    ~frmRiconsegna() override;

    void carica() override;

    QString codiceCliente() const { return mCodiceCliente; }
    /// The last of the three that a host sets: the hand-over waits from here on.
    void setCodiceCliente(const QString& codice);

protected:
    void attivata() override;
    bool event(QEvent* evento) override;

private:
    void collega();
    void collega(ChiaveRicerca& chiave, QPushButton* bottone);
    /// A handler on a screen where a database failure is told by the status line alone.
    std::function<void()> silenzioso(std::function<void()> azione);

    void eseguiConsegna();
    bool ControlloCampiRicerca(const ChiaveRicerca& chiave);
    void cercaNellElenco(const ChiaveRicerca& chiave);
    void cercaGiacenza();
    void cercaPerNumero();
    void mostraRiconsegne();
    void mostra(const QString& numero, QDate giorno);
    /// Why what is shown is not what the host handed over; empty when it is, or when something else was
    /// sought.
    QString altraDaQuellaConsegnata(const QString& numero, QDate giorno) const;
    /// Nothing is issued for a waybill that was not meant.
    void trattieni(bool trattenuta);
    Seguito lascia(const ChiaveRicerca& chiave);
    Seguito convalidaFilialeGia();

    std::unique_ptr<Ui::frmRiconsegna> mUi;
    PartiComuni mParti;
    ElencoSpedizioni mElenco;
    ChiaveRicerca mNumero;
    ChiaveRicerca mRiferimento;
    EmissioneRiconsegna mEmissione;
    Consegna mConsegna{*this, silenzioso([this] { eseguiConsegna(); })};
    QString mNLettVett;
    QString mDataLdv;
    QString mCodiceCliente;
    QString mFilialeLdv;
    QString mNumeroGiacenza;
    /// The hand-over that says what it means.
    struct Attesa
    {
        QString numero;
        QDate giorno;
        QString filiale;
        QString giacenza;
    } mAttesa;
};

} // namespace giacenza
