#pragma once

#include "base/messaggi.h"
#include "base/modale.h"
#include "screens/archivioschermata.h"
#include "screens/convalida.h"

#include <QWidget>

namespace giacenza {

/// A working screen as a window: its connection, its status line, staying on top, leaving. What it shows and
/// does are parts that it is composed of; they hold on to it for these.
class Schermata : public QWidget
{
    Q_OBJECT

public:
    /// Opens the screen's connection and fills what does not depend on a shipment. Called once, before the
    /// screen is shown; throws ErroreDatabase unchanged.
    virtual void carica();

    /// The screen's connection, opened when it is closed. Throws ErroreDatabase.
    Connessione& connessione() { return mArchivio->connessione(); }
    /// Closes and releases it; the next use opens it again.
    void rilasciaConnessione() { mArchivio->rilascia(); }

    /// Shows that the archive is waited for: for whoever asks it, until he tells, by a way of his own.
    void attendi() { mArchivio->attendi(); }

    /// What the screen says where no box is due; empty clears it. dettaglio: for whoever rests on it.
    void stato(const QString& testo, const QString& dettaglio = {});
    /// The same for a failure, in Italian, with the driver's words as detail. cheCosa: goes before.
    void statoGuasto(const Errore& errore, const QString& cheCosa = {});
    /// The same, behind what the line says already.
    void aggiungiGuasto(const Errore& errore, const QString& cheCosa);

    /// Makes a handler of what a control starts: whatever is thrown is told, a database failure as such, and
    /// a screen that was left under its own message or dialog ends the handler without a word.
    std::function<void()> gestore(std::function<void()> azione);

    /// For handlers: does what lets the host work meanwhile (a message, a dialog, a part of the host's); ends
    /// the handler when the screen was left or destroyed under it.
    void durante(const std::function<void()>& azione);

    /// The same for a dialog. leggi: what is to be read of it once it has closed.
    template<class Dialogo, class Leggi>
    auto modale(std::unique_ptr<Dialogo> dialogo, Leggi leggi)
    {
        std::invoke_result_t<Leggi, Dialogo&> letto{};
        durante([&] { letto = eseguiModale(std::move(dialogo), leggi); });
        return letto;
    }

    /// A message over the screen.
    Risposta messaggio(const QString& testo, Stile stile, const QString& titolo = titoloApplicazione());

    /// The checks of the screen's fields.
    Convalida& convalida() { return *mConvalida; }

    /// For the screen's parts: where stato() writes.
    void setRigaStato(QLabel* riga) { mArchivio->setRigaStato(mStato = riga); }

Q_SIGNALS:
    /// The operator has left: the connection is closed, and the screen goes by itself.
    void Uscita();

protected:
    explicit Schermata(const QString& nome);

    /// Takes the screen off the display while its parts are there: the focus that goes with it reaches them.
    void congeda() { mConvalida->sospendi(), hide(); }

    /// The screen became the active window.
    virtual void attivata() {}

    bool event(QEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;

private:
    Convalida* mConvalida;
    ArchivioSchermata* mArchivio;
    QLabel* mStato = nullptr;
    bool mUscita = false;
};

} // namespace giacenza
