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
              schermata.gestore([this] { RicercaSpedizione(mNumero); })),
      mRiferimento(schermata, ModoRicerca::riferimento, forma.txtRiferimento, forma.txtDataRif,
                   schermata.gestore([this] { RicercaSpedizione(mRiferimento); }))
{
    collega(mNumero, forma.cmdCercaLdv);
    collega(mRiferimento, forma.cmdCercaRif);
    suTasto(forma.txtFiliale, Qt::Key_F9, schermata.gestore([this] { RicercaSpedizione(mNumero); }));
    QObject::connect(&parti.spedizione.campi(), &CampiSchermata::giacenzaLetta, &schermata,
                     [this](bool giacente) { segnaGiacenza(giacente); });
    segnaGiacenza(false);
}

void RicercaLdv::collega(ChiaveRicerca& chiave, QPushButton* bottone)
{
    QObject::connect(bottone, &QPushButton::clicked, &mSchermata,
                     mSchermata.gestore([this, &chiave] { RicercaSpedizione(chiave); }));
    suTasto(chiave.campo(), Qt::Key_F12, mSchermata.gestore([this, &chiave] { ricerca(chiave); }));
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
    if (!conCliente || conDialogo)
        return mSchermata.gestore([this, &chiave] { ricerca(chiave); });
    try {
        ricerca(chiave);
        return {};
    } catch (...) {
        // Told, like a refusal, once the focus has moved: the click that moved it saves nothing.
        return mSchermata.gestore([errore = std::current_exception()] { std::rethrow_exception(errore); });
    }
}

void RicercaLdv::ricerca(ChiaveRicerca& chiave)
{
    if (!mParti.cliente.scelto())
        return;
    const auto giorno = chiave.giorno();
    if (!giorno)
        return mSchermata.stato(u"La data non è completa o non è valida: nessuna ricerca."_s);
    if (mUi.txtFiliale->text().isEmpty())
        return RicercaSpedizione(chiave);
    ricercaDiretta(chiave, *giorno);
}

void RicercaLdv::ricercaDiretta(const ChiaveRicerca& chiave, QDate giorno)
{
    const QString valore = chiave.valore();
    const QString filiale = mUi.txtFiliale->text();
    cercate();
    PulisciCampi();
    if (chiave.perNumero())
        mostra(istruzioni::spedizionePerNumeroDataFiliale(valore, giorno, filiale),
               u"LDV %1 del %2, filiale %3: non trovata."_s.arg(valore, dataBreve(giorno), filiale));
    else
        mostra(istruzioni::spedizionePerRiferimento(valore, giorno, filiale),
               u"Riferimento %1 del %2, filiale %3: non trovato."_s.arg(valore, dataBreve(giorno), filiale));
}

void RicercaLdv::RicercaSpedizione(const ChiaveRicerca& chiave)
{
    const auto presente = [](const QString& numero) { return !numero.isEmpty(); };
    if (!mParti.cliente.scelto() || !mElenco.ControllaImmissione(chiave, presente))
        return;
    const auto scelta = mElenco.RicercaSpedizione(chiave);
    cercate();
    if (!scelta) {
        if (mUi.txtFiliale->text().isEmpty())
            mSchermata.stato(
                u"L'elenco mostra solo le spedizioni della filiale scritta: scrivere la filiale."_s);
        return;
    }
    PulisciCampi();
    mostra(istruzioni::spedizionePerNumeroData(scelta->numero, scelta->giorno,
                                               chiave.perNumero() ? Giunzione::esternaMinuscola
                                                                  : Giunzione::esterna),
           u"LDV %1 del %2: non trovata."_s.arg(scelta->numero, dataBreve(scelta->giorno)));
}

void RicercaLdv::cercate()
{
    mNumero.cercata();
    mRiferimento.cercata();
}

void RicercaLdv::mostra(const QString& istruzione, const QString& nonTrovata)
{
    if (!mParti.spedizione.mostra(istruzione))
        return mSchermata.stato(nonTrovata);
    scrivi(mUi.barLdv, u"%1 del %2"_s.arg(tag(mUi.txtLDV), testo(mUi.txtDataLdv)));
}

} // namespace giacenza
