#pragma once

#include "base/messaggi.h"
#include "database/connessione.h"
#include "screens/convalida.h"
#include "screens/spedizione.h"

#include <QDate>
#include <QPointer>
#include <QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace giacenza {

class CampiSchermata;
class CampoData;

/// What the three working screens share: the connection, the status line, staying on top, leaving, and the
/// handlers of the customer code, the holding branch, the held-shipment date and the goods type. A screen's
/// form holds the controls under these names; what differs between screens is an override.
class Schermata : public QWidget
{
    Q_OBJECT

public:
    ~Schermata() override;

    /// Opens the screen's connection and fills what does not depend on a shipment. Called once, before the
    /// screen is shown; throws ErroreDatabase unchanged.
    virtual void carica();

Q_SIGNALS:
    /// The operator has left: the connection is closed, and the screen goes by itself.
    void Uscita();

protected:
    explicit Schermata(const QString& nome);

    /// Finds the shared controls and connects their handlers; for the constructors, once the form is set up.
    void preparaComuni(const MappaSpedizione& mappa);

    /// The screen's connection, opened when it is closed. Throws ErroreDatabase.
    Connessione& connessione();

    /// Closes and releases it; the next use opens it again.
    void rilasciaConnessione();

    /// What the screen says where no message box is due; empty clears it.
    void stato(const QString& testo);

    /// Makes a handler of what a control starts: whatever is thrown is told, a database failure as such, and
    /// a screen that was closed under its own message or dialog ends the handler without a word.
    std::function<void()> gestore(std::function<void()> azione);

    /// For handlers: to be called after every dialog; ends the handler when the screen was closed meanwhile.
    void restaAperta(const QPointer<const Schermata>& io) const;

    /// A message over the screen.
    Risposta messaggio(const QString& testo, Stile stile, const QString& titolo = titoloApplicazione());

    /// A refusal of a field: the message, then the focus back in the field.
    Seguito rifiuta(QWidget* campo, const QString& testo, Stile stile,
                    const QString& titolo = titoloApplicazione());

    /// The screen became the active window.
    virtual void attivata();

    /// Fills the screen from the first row of a lookup. Returns false, with the screen as it is, when there
    /// is none. Throws ErroreDatabase.
    bool mostraSpedizione(const QString& istruzione);

    /// The row that the screen was just filled from: for what a screen shows besides.
    virtual void rigaMostrata([[maybe_unused]] const Recordset& riga) {}

    /// Writes the storage days into their bar: nothing when the held-shipment date is no date.
    void CalcolaGiorniSosta();

    /// A customer was taken from the party search.
    virtual void clienteCercato() {}

    /// Finds the customer of the code field and locks the field; without one says so.
    Seguito convalidaCliente();

    /// Looks a customer code up; the empty one is nothing to look up. errato: what is to be done when it is
    /// no number. trovato: given the customer's name, may be empty. A customer that is not there is told.
    Seguito verificaCliente(const QString& codice, const Seguito& errato,
                            const std::function<void(const QString&)>& trovato = {});
    /// The message for a code that is no number, and its caption.
    static QString clienteErrato();
    virtual QString titoloClienteErrato() const;

    /// Whether there is a customer code; without one says so.
    bool clienteScelto();

    /// Locks the customer code, once it is known to be good, or opens it again.
    void bloccaCliente(bool bloccato);

    bool event(QEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;

    Convalida* mConvalida;
    CampiSchermata* mCampi = nullptr;
    const MappaSpedizione* mMappa = nullptr;

    QLineEdit* txtCodiceCli = nullptr;
    QLabel* barCliente = nullptr;
    QPushButton* cmdCercaCliente = nullptr;
    QLineEdit* txtFilialeGia = nullptr;
    QLabel* barFilialeGia = nullptr;
    CampoData* txtDataGia = nullptr;
    QLabel* lblDataLav = nullptr;
    QLabel* lblDataAvviso = nullptr;
    QLabel* lblDataBuonFine = nullptr;
    QLabel* lblNrGia = nullptr;
    QLabel* barGiorniSosta = nullptr;
    QComboBox* cmbNaturaMerce = nullptr;
    QComboBox* cmbPorto = nullptr;

private:
    template<class Controllo>
    Controllo* trova(const char* nome) const;
    void collegaCliente();
    void cercaCliente();
    void guasto(const QString& cheCosa, const QString& perche);
    void collegaTasti();
    Seguito convalidaDataGia();
    void cercaFiliale();
    void leggiFilialeGia();
    void caricaPorto();

    Connessione mConnessione;
    QLabel* mStato = nullptr;
    bool mUscita = false;
};

} // namespace giacenza
