#include "registration/ricercaldv.h"

#include "database/valori.h"
#include "ui_frmGiacenza.h"
#include "widgets/tasti.h"

#include <exception>

using namespace Qt::StringLiterals;

namespace giacenza {

using istruzioni::Giunzione;

RicercaLdv::RicercaLdv(Schermata& schermata, const Ui::frmGiacenza& forma, PartiComuni& parti)
    : mSchermata(schermata), mUi(forma), mParti(parti), mElenco(schermata, parti.cliente, forma.txtFiliale),
      mNumero(schermata, ModoRicerca::letteraVettura, forma.txtLDV, forma.txtDataLdv,
              schermata.gestore([this] { prosegui(RicercaSpedizione(mNumero)); })),
      mRiferimento(schermata, ModoRicerca::riferimento, forma.txtRiferimento, forma.txtDataRif,
                   schermata.gestore([this] { prosegui(RicercaSpedizione(mRiferimento)); }))
{
    collega(mNumero, forma.cmdCercaLdv);
    collega(mRiferimento, forma.cmdCercaRif);
    suTasto(forma.txtFiliale, Qt::Key_F9,
            schermata.gestore([this] { prosegui(RicercaSpedizione(mNumero)); }));
    QObject::connect(&parti.spedizione.campi(), &CampiSchermata::giacenzaLetta, &schermata,
                     [this](bool giacente) { segnaGiacenza(giacente); });
    segnaGiacenza(false);
}

void RicercaLdv::collega(ChiaveRicerca& chiave, QPushButton* bottone)
{
    QObject::connect(bottone, &QPushButton::clicked, &mSchermata,
                     mSchermata.gestore([this, &chiave] { RicercaSpedizione(chiave); }));
    const auto conTasto = mSchermata.gestore([this, &chiave] { prosegui(ricerca(chiave)); });
    suTasto(chiave.campo(), Qt::Key_F12, conTasto);
    for (const Qt::Key invio : {Qt::Key_Return, Qt::Key_Enter})
        suTasto(chiave.campoData(), invio, conTasto);
    mSchermata.convalida().aggiungi(chiave.campoData(), [this, &chiave] { return lascia(chiave); });
}

void RicercaLdv::segnaGiacenza(bool giacente)
{
    mUi.lblGiaInGiacenza->setVisible(giacente);
}

void RicercaLdv::PulisciCampi()
{
    const auto righe = mUi.Frame2->findChildren<QLineEdit*>();
    for (QLineEdit* riga : righe)
        if (!qobject_cast<CampoData*>(riga) && !qobject_cast<QComboBox*>(riga->parentWidget()))
            scrivi(riga, {});
    const auto blocchi = mUi.Frame2->findChildren<QPlainTextEdit*>();
    for (QPlainTextEdit* blocco : blocchi)
        scrivi(blocco, {});
    for (QLabel* etichetta : {mUi.barFilSped, mUi.barVettore, mUi.barLineaCli, mUi.barFilialeGia,
                              mUi.barGiorniSosta, mUi.lblNrGia, mUi.barLdv})
        scrivi(etichetta, {});
    segnaGiacenza(false);
    mSchermata.stato({});
}

Seguito RicercaLdv::lascia(ChiaveRicerca& chiave)
{
    if (!chiave.modificata() || chiave.data().isEmpty())
        return {};
    const bool conCliente = !mParti.cliente.codice().isEmpty();
    // A date typed first is no search yet.
    if (conCliente && chiave.valore().isEmpty())
        return {};
    const bool conDialogo = mUi.txtFiliale->text().isEmpty() && chiave.giorno();
    const bool conTab = mSchermata.convalida().conTab();
    const auto cerca = [this, &chiave, conTab] {
        const bool trovata = ricerca(chiave);
        if (conTab)
            prosegui(trovata);
    };
    if (!conCliente || conDialogo)
        return mSchermata.gestore(cerca);
    try {
        cerca();
        return {};
    } catch (...) {
        // Told, like a refusal, once the focus has moved: the click that moved it saves nothing.
        return mSchermata.gestore([errore = std::current_exception()] { std::rethrow_exception(errore); });
    }
}

bool RicercaLdv::ricerca(ChiaveRicerca& chiave)
{
    if (!mParti.cliente.scelto())
        return false;
    const auto giorno = chiave.giorno();
    if (!giorno) {
        mSchermata.stato(u"La data non è completa o non è valida: nessuna ricerca."_s);
        return false;
    }
    if (mUi.txtFiliale->text().isEmpty())
        return RicercaSpedizione(chiave);
    return ricercaDiretta(chiave, *giorno);
}

bool RicercaLdv::ricercaDiretta(const ChiaveRicerca& chiave, QDate giorno)
{
    const QString valore = chiave.valore();
    const QString filiale = mUi.txtFiliale->text();
    cercate();
    PulisciCampi();
    if (chiave.perNumero())
        return mostra(istruzioni::spedizionePerNumeroDataFiliale(valore, giorno, filiale),
                      u"LDV %1 del %2, filiale %3: non trovata."_s.arg(valore, dataBreve(giorno), filiale));
    return mostra(
        istruzioni::spedizionePerRiferimento(valore, giorno, filiale),
        u"Riferimento %1 del %2, filiale %3: non trovato."_s.arg(valore, dataBreve(giorno), filiale));
}

bool RicercaLdv::RicercaSpedizione(const ChiaveRicerca& chiave)
{
    const auto presente = [](const QString& numero) { return !numero.isEmpty(); };
    if (!mParti.cliente.scelto() || !mElenco.ControllaImmissione(chiave, presente))
        return false;
    const auto scelta = mElenco.RicercaSpedizione(chiave);
    cercate();
    if (!scelta) {
        if (mUi.txtFiliale->text().isEmpty())
            mSchermata.stato(
                u"L'elenco mostra solo le spedizioni della filiale scritta: scrivere la filiale."_s);
        return false;
    }
    PulisciCampi();
    return mostra(istruzioni::spedizionePerNumeroData(scelta->numero, scelta->giorno,
                                                      chiave.perNumero() ? Giunzione::esternaMinuscola
                                                                         : Giunzione::esterna),
                  u"LDV %1 del %2: non trovata."_s.arg(scelta->numero, dataBreve(scelta->giorno)));
}

void RicercaLdv::cercate()
{
    mNumero.cercata();
    mRiferimento.cercata();
}

bool RicercaLdv::mostra(const QString& istruzione, const QString& nonTrovata)
{
    if (!mParti.spedizione.mostra(istruzione)) {
        mSchermata.stato(nonTrovata);
        return false;
    }
    scrivi(mUi.barLdv, u"%1 del %2"_s.arg(tag(mUi.txtLDV), testo(mUi.txtDataLdv)));
    return true;
}

void RicercaLdv::prosegui(bool trovata)
{
    if (trovata)
        mUi.txtFilialeGia->setFocus(Qt::TabFocusReason);
}

} // namespace giacenza
