#include "screens/schermata.h"

#include "base/spiegazioni.h"
#include "base/testoerrore.h"
#include "data/archivio.h"
#include "screens/aspetto.h"
#include "widgets/annuncio.h"
#include "widgets/primopiano.h"

#include <QCloseEvent>
#include <QLabel>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

/// Ends the handlers of a screen that was closed under them; told to nobody.
struct Abbandono
{};

QString nonRiuscita(const ErroreDatabase& errore)
{
    if (forseScritto(errore))
        return u"Non si sa se l'operazione è riuscita: l'archivio non ha risposto mentre scriveva. Ripeterla "
               u"non "
               "la conta due volte."_s;
    return u"Operazione non riuscita: il database o un suo dato non risponde come dovrebbe."_s;
}

} // namespace

Schermata::Schermata(const QString& nome)
    : mConvalida(new Convalida(this)), mArchivio(new ArchivioSchermata(this))
{
    setObjectName(nome);
    setAttribute(Qt::WA_QuitOnClose, false);
    setStyleSheet(aspettoSchermata());
}

void Schermata::carica()
{
    verificaTabelle(connessione());
}

void Schermata::stato(const QString& testo, const QString& dettaglio)
{
    mStato->setText(testo.section(u'\n', 0, 0));
    mStato->setToolTip(dettaglio.isEmpty() ? testo : dettaglio);
    annuncia(mStato);
}

void Schermata::statoGuasto(const Errore& errore, const QString& cheCosa)
{
    stato(cheCosa + spiega(errore), cheCosa + errore.testo());
}

void Schermata::aggiungiGuasto(const Errore& errore, const QString& cheCosa)
{
    const QString detto = mStato->text();
    const auto insieme = [&](const QString& prima, const QString& motivo) {
        return (prima.isEmpty() ? prima : prima + (prima.endsWith(u'.') ? u" "_s : u". "_s)) + cheCosa +
               motivo;
    };
    stato(insieme(detto, spiega(errore)), insieme(mStato->toolTip(), errore.testo()));
}

std::function<void()> Schermata::gestore(std::function<void()> azione)
{
    return [this, azione = std::move(azione)] {
        try {
            try {
                azione();
            } catch (const Abbandono&) {
                throw;
            } catch (const ErroreDatabase& errore) {
                statoGuasto(errore);
                messaggio(nonRiuscita(errore) + u"\n\n"_s + spiega(errore), Stile::critico);
            } catch (...) {
                // A part of the host's throws what it likes, and nothing may pass through Qt's loop.
                stato(testoErrore());
                messaggio(u"Operazione non riuscita.\n\n"_s + testoErrore(), Stile::critico);
            }
        } catch (const Abbandono&) { // The screen is gone: there is nobody to tell.
        }
    };
}

void Schermata::durante(const std::function<void()>& azione)
{
    const QPointer<const Schermata> io(this);
    azione();
    if (!io || io->mUscita)
        throw Abbandono{};
}

Risposta Schermata::messaggio(const QString& testo, Stile stile, const QString& titolo)
{
    Risposta risposta{};
    durante([&] { risposta = mostraMessaggio(this, {testo, stile, titolo}); });
    return risposta;
}

bool Schermata::event(QEvent* evento)
{
    // Not every system activates the screen anew when a box over it has closed.
    if (evento->type() == QEvent::WindowActivate || evento->type() == QEvent::WindowUnblocked) {
        SempreInPrimoPiano(this, true);
        attivata();
    }
    return QWidget::event(evento);
}

void Schermata::closeEvent(QCloseEvent* evento)
{
    evento->accept();
    if (std::exchange(mUscita, true))
        return;
    congeda();
    mArchivio->rilascia();
    deleteLater();
    Q_EMIT Uscita();
}

} // namespace giacenza
