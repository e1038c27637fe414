#include "screens/campocliente.h"

#include "data/istruzioni.h"
#include "database/recordset.h"
#include "screens/campi.h"
#include "screens/rifiuto.h"
#include "search/apriricerca.h"
#include "widgets/tasti.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <utility>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

QString testoErrato()
{
    return u"Codice cliente assente o errato"_s;
}

} // namespace

CampoCliente::CampoCliente(Schermata& schermata, const Controlli& controlli, Differenze differenze)
    : mSchermata(schermata), mControlli(controlli), mDifferenze(std::move(differenze))
{
    schermata.convalida().aggiungi(mControlli.codice, [this] { return convalida(); });
    QObject::connect(mControlli.codice, &QLineEdit::returnPressed, &schermata, [this] {
        // As if reached by Tab, so that the button shows its focus.
        // A style draws the focus only where a key is known to have moved it.
        mSchermata.setAttribute(Qt::WA_KeyboardFocusChange);
        mControlli.cerca->setFocus(Qt::TabFocusReason);
    });
    // The name belongs to the code that was there.
    QObject::connect(mControlli.codice, &QLineEdit::textEdited, &schermata,
                     [this] { scrivi(mControlli.barra, {}); });
    const auto ricerca = schermata.gestore([this] { cerca(); });
    QObject::connect(mControlli.cerca, &QPushButton::clicked, &schermata, ricerca);
    suTasto(mControlli.codice, Qt::Key_F12, ricerca);
}

QString CampoCliente::codice() const
{
    return mControlli.codice->text();
}

QString CampoCliente::ragioneSociale() const
{
    return mControlli.barra->text();
}

void CampoCliente::cerca()
{
    RisultatoRicerca trovato;
    mSchermata.durante([&] { trovato = ApriRicerca(u"1"_s, u"Clien"_s, &mSchermata); });
    if (!trovato.trovato)
        return;
    scrivi(mControlli.codice, QString::number(trovato.codice));
    scrivi(mControlli.barra, trovato.ragioneSociale);
    mDifferenze.cercato();
}

bool CampoCliente::scelto()
{
    if (!codice().isEmpty())
        return true;
    mSchermata.messaggio(u"Selezionare il codice cliente."_s, Stile::avviso);
    // The date that asked for the customer would ask once more when it is left.
    mSchermata.convalida().senzaVerifiche([this] { mControlli.codice->setFocus(); });
    return false;
}

Seguito CampoCliente::convalida()
{
    if (mControlli.codice->isReadOnly())
        return {};
    const QString digitato = codice().trimmed();
    const Seguito seguito = verifica(
        digitato,
        rifiuta(mSchermata, mControlli.codice, testoErrato(), Stile::avviso, mDifferenze.titoloErrato()),
        [&](const QString& nome) {
            scrivi(mControlli.barra, nome);
            mControlli.codice->setText(digitato);
            blocca(true);
            mInesistente.clear();
        });
    // A customer that is not there is typed anew, but whoever leaves the same code again goes on with it.
    if (!seguito || !eNumero(digitato) || std::exchange(mInesistente, digitato) == digitato)
        return seguito;
    return mSchermata.gestore([this, seguito] {
        mSchermata.durante(seguito);
        mControlli.codice->setFocus();
    });
}

Seguito CampoCliente::imposta(const QString& codice)
{
    blocca(false);
    scrivi(mControlli.codice, codice);
    scrivi(mControlli.barra, {});
    return convalida();
}

void CampoCliente::ripetiGuasto() const
{
    if (mGuasto)
        mSchermata.aggiungiGuasto(*mGuasto, u"Il cliente non si legge. "_s);
}

Seguito CampoCliente::verifica(const QString& codice, const Seguito& errato,
                               const std::function<void(const QString&)>& trovato)
{
    mGuasto.reset();
    if (codice.isEmpty())
        return {};
    if (!eNumero(codice))
        return errato;
    try {
        Recordset cliente;
        cliente.apri(mSchermata.connessione(), istruzioni::clientePerCodice(codice));
        if (cliente.eof())
            return mSchermata.gestore([this] {
                mSchermata.messaggio(u"Codice Cliente Inesistente"_s, Stile::informazione, titoloGestione());
            });
        if (trovato)
            trovato(cliente.valore(0).value_or(QString()));
    } catch (const ErroreDatabase& errore) {
        mSchermata.statoGuasto(errore);
        mGuasto = errore;
    }
    return {};
}

void CampoCliente::diciErrato()
{
    mSchermata.messaggio(testoErrato(), Stile::avviso, mDifferenze.titoloErrato());
}

void CampoCliente::blocca(bool bloccato)
{
    mControlli.codice->setReadOnly(bloccato);
    rinnovaAspetto(mControlli.codice);
}

void CampoCliente::pulisci()
{
    scrivi(mControlli.codice, {});
    scrivi(mControlli.barra, {});
    blocca(false);
}

void CampoCliente::abilita(bool abilitato)
{
    const std::initializer_list<QWidget*> controlli = {mControlli.codice, mControlli.barra, mControlli.cerca};
    for (QWidget* controllo : controlli)
        controllo->setEnabled(abilitato);
    if (abilitato)
        blocca(false);
}

} // namespace giacenza
