#include "redelivery/emissionericonsegna.h"

#include "base/forme.h"
#include "base/impostazioni.h"
#include "base/orologio.h"
#include "base/spiegazioni.h"
#include "dialogs/frmPorto.h"
#include "ui_frmRiconsegna.h"

#include <QPointer>
#include <QScopeGuard>

using namespace Qt::StringLiterals;

namespace giacenza {

EmissioneRiconsegna::EmissioneRiconsegna(Schermata& schermata, const Ui::frmRiconsegna& forma,
                                         PartiComuni& parti)
    : mSchermata(schermata), mUi(forma), mParti(parti)
{}

void EmissioneRiconsegna::riconsegna()
{
    // An issuer that keeps the program going while it works leaves the button within reach.
    if (mInCorso)
        return;
    // A shortcut moves no focus: the field that has it is checked first. Not so the branch, whose message
    // stops nothing.
    if (!mUi.txtFilialeGia->hasFocus())
        if (const Seguito seguito = mSchermata.convalida().verificaCorrente())
            return seguito();
    const QPointer<const Schermata> schermata(&mSchermata);
    mInCorso = true;
    const auto finito = qScopeGuard([this, schermata] {
        if (schermata)
            mInCorso = false;
    });
    esegui();
}

void EmissioneRiconsegna::esegui()
{
    mSchermata.stato({});
    LdvLetta ldv;
    leggi(ldv);
    const Scelte scelte = chiediPorto();
    bool emessa = false;
    if (!scelte.annullato) {
        const auto conto = scelte.controllo ? contaGiacenza() : std::nullopt;
        emessa = !scelte.controllo || accettato(conto);
        if (emessa)
            emetti(ldv, scelte.stampa, contesto(scelte, conto));
    }
    mSchermata.rilasciaConnessione();
    if (emessa) {
        mEmessa = true;
        mUi.cmdRiconsegna->setEnabled(false);
    }
}

void EmissioneRiconsegna::leggi(LdvLetta& ldv)
{
    try {
        Connessione& connessione = mSchermata.connessione();
        const auto giorno = leggiData(testo(mUi.txtDataLdv));
        if (!giorno)
            throw ErroreConversione(u"La data della lettera di vettura non è valida."_s);
        Recordset riga;
        riga.apri(connessione, istruzioni::spedizioneIntera(
                                   {mUi.txtFiliale->text(), numeroLdv(mUi.txtLDV), giorno->year()}));
        ldv.leggi(riga);
        // An open result would hold back what the issuer writes, where the database is a file.
        riga.chiudi();
    } catch (const Errore& errore) {
        mSchermata.statoGuasto(errore);
    }
}

EmissioneRiconsegna::Scelte EmissioneRiconsegna::chiediPorto()
{
    auto dialogo = std::make_unique<frmPorto>(&mSchermata);
    Forme::delThread()->annota(dialogo->objectName(), dialogo.get());
    return mSchermata.modale(std::move(dialogo), [](const frmPorto& porto) {
        return Scelte{.porto = QString::number(porto.Porto()),
                      .controllo = porto.ControlloGiacenza(),
                      .stampa = porto.StampaLDV(),
                      .annullato = porto.annullato()};
    });
}

std::optional<ContoRiconsegne> EmissioneRiconsegna::contaGiacenza()
{
    const auto giorno = mParti.dataGiacenza.giorno();
    // Without a date there is no year to look for, so there is no such held shipment.
    if (!giorno) {
        mSchermata.stato(u"Manca la data della giacenza."_s);
        return ContoRiconsegne{EsitoRiconsegne::inesistente};
    }
    try {
        return ContaRiconsegne(mSchermata.connessione(), {mParti.caso.numero(), giorno->year()});
    } catch (const Errore& errore) {
        mSchermata.statoGuasto(errore, u"La giacenza non si controlla. "_s);
        return std::nullopt;
    }
}

bool EmissioneRiconsegna::accettato(const std::optional<ContoRiconsegne>& conto)
{
    if (!conto)
        return false;
    switch (conto->esito) {
    case EsitoRiconsegne::emettibile:
        return true;
    case EsitoRiconsegne::inesistente:
        mSchermata.messaggio(u"Giacenza inesistente immettere la giacenza."_s, Stile::avviso);
        return false;
    case EsitoRiconsegne::chiusa:
        mSchermata.messaggio(u"la Giacenza è stata chiusa con avviso di buon fine in data: %1."_s.arg(
                                 testo(mUi.lblDataBuonFine)),
                             Stile::avviso);
        return false;
    case EsitoRiconsegne::giaRiconsegnata:
        return mSchermata.messaggio(
                   u"Sono presenti n.%1 riconsegne emettere una nuova riconsegna?"_s.arg(conto->riconsegne),
                   Stile::domandaInformazione) == Risposta::si;
    }
    return false;
}

Contesto EmissioneRiconsegna::contesto(const Scelte& scelte,
                                       const std::optional<ContoRiconsegne>& conto) const
{
    // Without a date nobody knows which year's held shipment the number is: then none is named.
    const auto giorno = mParti.dataGiacenza.giorno();
    const Movimento movimento = impostazioni().movimento;
    const QPointer<QWidget> finestra = &mSchermata;
    const auto racconta = [finestra](const Racconto& racconto) {
        const Stile stile = racconto.tono == Tono::guasto ? Stile::critico : Stile::avviso;
        mostraMessaggio(finestra, {racconto.testo, stile, titoloApplicazione()});
    };
    return {.lavoro = etichettaReso(movimento),
            .resoAMittente = movimento == Movimento::reso,
            .porto = scelte.porto.toInt(),
            .numeroGiacenza = giorno ? mParti.caso.numero() : QString(),
            .annoGiacenza = giorno ? giorno->year() : 0,
            .controlloGiacenza = scelte.controllo,
            .riconsegne = conto ? conto->riconsegne : 0,
            .oggi = oggi(),
            .finestra = finestra,
            .racconta = racconta,
            .documento = [finestra, stampa = &mParti.stampa](const QString& file) {
                if (finestra)
                    stampa->ricorda(file);
            }};
}

void EmissioneRiconsegna::emetti(const LdvLetta& ldv, bool stampa, Contesto contesto)
{
    QString esito;
    // Behind what the box says; shared, since an issuer may still tell something when the screen has gone.
    const auto parole = std::make_shared<QString>();
    contesto.racconta = [parole, mostra = contesto.racconta](const Racconto& racconto) {
        if (!racconto.dettaglio.isEmpty())
            *parole = racconto.dettaglio;
        mostra(racconto);
    };
    // The issuer's windows let the host work meanwhile.
    mSchermata.durante([&] {
        try {
            esito = EmettiRiconsegna(ldv, stampa, contesto);
        } catch (const Errore& errore) {
            esito = spiega(errore);
            *parole = errore.testo();
        }
    });
    if (esito.isEmpty())
        esito =
            u"Nessuna lettera di vettura è stata emessa. Per riprovare uscire e riaprire questa schermata."_s;
    if (!mParti.dataGiacenza.giorno())
        esito += u" Manca la data della giacenza: non si sa di quale giacenza sia la LDV."_s;
    mSchermata.stato(esito, parole->isEmpty() ? QString() : esito + u' ' + *parole);
}

} // namespace giacenza
