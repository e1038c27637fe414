#include "base/forme.h"
#include "base/impostazioni.h"
#include "base/orologio.h"
#include "dialogs/frmPorto.h"
#include "redelivery/emissione.h"
#include "redelivery/frmRiconsegna.h"
#include "screens/campi.h"
#include "ui_frmRiconsegna.h"

#include <QPointer>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

/// The issue: what the button of the re-delivery screen does, step by step. A step that fails does not stop
/// the next one; its failure stands in the status line.
namespace giacenza {

void frmRiconsegna::ApriConnessione()
{
    connessione();
}

void frmRiconsegna::leggiLdv(LdvLetta& ldv)
{
    const auto giorno = leggiData(testo(mUi->txtDataLdv));
    if (!giorno)
        throw ErroreConversione(u"La data della lettera di vettura non è valida."_s);
    Recordset riga;
    riga.apri(connessione(), istruzioni::spedizioneIntera(
                                 {mUi->txtFiliale->text(), numeroLdv(mUi->txtLDV), giorno->year()}));
    ldv.leggi(riga);
    // An open result would hold back what the issuer writes, where the database is a file.
    riga.chiudi();
}

frmRiconsegna::Scelte frmRiconsegna::chiediPorto()
{
    const QPointer<const Schermata> io(this);
    const QPointer<frmPorto> dialogo = new frmPorto(this);
    Forme::delThread()->annota(dialogo->objectName(), dialogo);
    dialogo->exec();
    restaAperta(io);
    if (!dialogo)
        return {};
    const Scelte scelte = {.porto = QString::number(dialogo->Porto()),
                           .controllo = dialogo->ControlloGiacenza(),
                           .stampa = dialogo->StampaLDV(),
                           .annullato = dialogo->annullato()};
    delete dialogo;
    return scelte;
}

std::optional<ContoRiconsegne> frmRiconsegna::contaGiacenza()
{
    const QString numero = testo(lblNrGia);
    const auto giorno = leggiData(testo(txtDataGia));
    // Without a date there is no year to look for, so there is no such held shipment.
    if (!giorno)
        return ContoRiconsegne{EsitoRiconsegne::inesistente};
    try {
        return ContaRiconsegne(connessione(), {numero, giorno->year()});
    } catch (const Errore& errore) {
        stato(u"La giacenza non si controlla: %1"_s.arg(errore.testo()));
        return std::nullopt;
    }
}

bool frmRiconsegna::accettato(const std::optional<ContoRiconsegne>& conto)
{
    if (!conto)
        return false;
    switch (conto->esito) {
    case EsitoRiconsegne::emettibile:
        return true;
    case EsitoRiconsegne::inesistente:
        messaggio(u"Giacenza inesistente immettere la giacenza."_s, Stile::avviso);
        return false;
    case EsitoRiconsegne::chiusa:
        messaggio(
            u"la Giacenza è stata chiusa con avviso di buon fine in data: %1."_s.arg(testo(lblDataBuonFine)),
            Stile::avviso);
        return false;
    case EsitoRiconsegne::giaRiconsegnata:
        return messaggio(
                   u"Sono presenti n.%1 riconsegne emettere una nuova riconsegna?"_s.arg(conto->riconsegne),
                   Stile::domandaInformazione) == Risposta::si;
    }
    return false;
}

Contesto frmRiconsegna::contesto(const Scelte& scelte, const std::optional<ContoRiconsegne>& conto) const
{
    const auto giorno = leggiData(testo(txtDataGia));
    const QString lavoro = impostazioni().etichettaReso;
    return {.lavoro = lavoro,
            .resoAMittente = lavoro == u"Reso a Mittente"_s,
            .porto = scelte.porto.toInt(),
            .numeroGiacenza = testo(lblNrGia),
            .annoGiacenza = giorno ? giorno->year() : 0,
            .controlloGiacenza = scelte.controllo,
            .riconsegne = conto ? conto->riconsegne : 0,
            .oggi = oggi(),
            .finestra = const_cast<frmRiconsegna*>(this)};
}

void frmRiconsegna::emetti(const LdvLetta& ldv, bool stampa, const Contesto& contesto)
{
    // The issuer's windows let the host work meanwhile: it may destroy this screen.
    const QPointer<const Schermata> io(this);
    QString esito;
    try {
        esito = EmettiRiconsegna(ldv, stampa, contesto);
    } catch (const Errore& errore) {
        esito = errore.testo();
    }
    restaAperta(io);
    stato(esito);
}

void frmRiconsegna::riconsegna()
{
    // An issuer that keeps the program going while it works leaves the button within reach.
    if (mInCorso)
        return;
    // A shortcut moves no focus: the field that has it is checked first. Not so the branch, whose message
    // stops nothing.
    if (!txtFilialeGia->hasFocus())
        if (const Seguito seguito = mConvalida->verificaCorrente())
            return seguito();
    const QPointer<frmRiconsegna> io(this);
    mInCorso = true;
    const auto finito = qScopeGuard([io] {
        if (io)
            io->mInCorso = false;
    });
    stato({});
    LdvLetta ldv;
    prosegui([&] {
        ApriConnessione();
        leggiLdv(ldv);
    });
    const Scelte scelte = chiediPorto();
    bool emessa = false;
    if (!scelte.annullato) {
        const auto conto = scelte.controllo ? contaGiacenza() : std::nullopt;
        emessa = !scelte.controllo || accettato(conto);
        if (emessa)
            emetti(ldv, scelte.stampa, contesto(scelte, conto));
    }
    rilasciaConnessione();
    if (emessa)
        mUi->cmdRiconsegna->setEnabled(false);
}

} // namespace giacenza
