#include "screens/schermata.h"

#include "base/impostazioni.h"
#include "base/testoerrore.h"
#include "database/recordset.h"
#include "screens/aspetto.h"
#include "widgets/annuncio.h"
#include "widgets/primopiano.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QLabel>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

/// Ends the handlers of a screen that was closed under them; told to nobody.
struct Abbandono
{};

} // namespace

Schermata::Schermata(const QString& nome) : mConvalida(new Convalida(this))
{
    setObjectName(nome);
    setAttribute(Qt::WA_QuitOnClose, false);
    setStyleSheet(aspettoSchermata(QGuiApplication::palette()));
}

Connessione& Schermata::connessione()
{
    mConnessione.apri(impostazioni().percorsoDatabase);
    return mConnessione;
}

void Schermata::rilasciaConnessione()
{
    ChiudiOggettiDB(nullptr, &mConnessione, true, false);
}

void Schermata::stato(const QString& testo)
{
    mStato->setText(testo.section(u'\n', 0, 0));
    mStato->setToolTip(testo);
    annuncia(mStato);
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
                guasto(u"Operazione non riuscita: il database o un suo dato non risponde come dovrebbe."_s,
                       errore.testo());
            } catch (...) {
                // A part of the host's throws what it likes, and nothing may pass through Qt's loop.
                guasto(u"Operazione non riuscita."_s, testoErrore());
            }
        } catch (const Abbandono&) {
            // The screen is gone: there is nobody to tell.
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

void Schermata::guasto(const QString& cheCosa, const QString& perche)
{
    stato(perche);
    messaggio(cheCosa + u"\n\n"_s + perche, Stile::critico, titoloGestione());
}

bool Schermata::event(QEvent* evento)
{
    // Not every system activates the screen anew when a box over it has closed.
    if (evento->type() == QEvent::WindowActivate || evento->type() == QEvent::WindowUnblocked)
        attivata();
    return QWidget::event(evento);
}

void Schermata::attivata()
{
    SempreInPrimoPiano(this, true);
}

void Schermata::closeEvent(QCloseEvent* evento)
{
    evento->accept();
    if (mUscita)
        return;
    mUscita = true;
    mConvalida->sospendi();
    mConnessione.chiudi();
    hide();
    deleteLater();
    Q_EMIT Uscita();
}

} // namespace giacenza
