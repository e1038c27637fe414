#include "registration/ricercaldv.h"

#include "database/valori.h"
#include "ui_frmGiacenza.h"
#include "widgets/tasti.h"

#include <exception>
#include <utility>

using namespace Qt::StringLiterals;

namespace giacenza {

using istruzioni::Giunzione;

RicercaLdv::RicercaLdv(Schermata& schermata, const Ui::frmGiacenza& forma, PartiComuni& parti)
    : mSchermata(schermata), mUi(forma), mParti(parti), mElenco(schermata, parti.cliente, forma.txtFiliale),
      mNumero(schermata, ModoRicerca::letteraVettura, forma.txtLDV, forma.txtDataLdv,
              schermata.gestore([this] { prosegui(RicercaSpedizione(mNumero)); })),
      mRiferimento(schermata, ModoRicerca::riferimento, forma.txtRiferimento, forma.txtDataRif,
                   schermata.gestore([this] { prosegui(RicercaSpedizione(mRiferimento)); })),
      mMotivo(forma.txtDescGia, forma.lblAvvMotivo), mMotivoDigitato(new Ripristino(forma.txtDescGia)),
      mFilialeDigitata(new Ripristino(forma.txtFilialeGia))
{
    collega(mNumero, forma.cmdCercaLdv);
    collega(mRiferimento, forma.cmdCercaRif);
    suTasto(forma.txtFiliale, Qt::Key_F9,
            schermata.gestore([this] { prosegui(RicercaSpedizione(mNumero)); }));
    QObject::connect(&parti.spedizione.campi(), &CampiSchermata::giacenzaLetta, &schermata,
                     [this](bool giacente) { segnaGiacenza(giacente); });
    schermata.convalida().aggiungi(forma.txtFiliale, [this] { return lasciaFiliale(); });
    QObject::connect(forma.txtDescGia, &QPlainTextEdit::textChanged, &schermata, [this] { avvertiMotivo(); });
    quandoCambiaAvanzo(forma.txtDescGia, [this] { avvertiMotivo(); });
    // Queued: a hand-over changes the customer first, and then the shipment.
    QObject::connect(
        forma.txtCodiceCli, &QLineEdit::textChanged, &schermata, [this] { clienteCambiato(); },
        Qt::QueuedConnection);
    segnaGiacenza(false);
    segnaCliente({});
}

void RicercaLdv::collega(ChiaveRicerca& chiave, QPushButton* bottone)
{
    QObject::connect(bottone, &QPushButton::clicked, &mSchermata,
                     mSchermata.gestore([this, &chiave] { RicercaSpedizione(chiave); }));
    const auto conTasto = mSchermata.gestore([this, &chiave] { prosegui(ricerca(chiave)); });
    suTasto(chiave.campo(), Qt::Key_F12, conTasto);
    QObject::connect(chiave.campoData(), &QLineEdit::returnPressed, &mSchermata, conTasto);
    mSchermata.convalida().aggiungi(chiave.campoData(), [this, &chiave] { return lascia(chiave); });
}

void RicercaLdv::segnaGiacenza(bool giacente)
{
    mGiacente = giacente;
    mUi.lblGiaInGiacenza->setVisible(giacente);
    avvertiMotivo();
}

void RicercaLdv::registrata()
{
    segnaGiacenza(true);
    // From now on they are the case's, and nobody has to take them back.
    for (Ripristino* digitato : {mMotivoDigitato, mFilialeDigitata})
        digitato->dimentica();
    segnaDelCaso(mUi.txtDescGia);
    segnaDelCaso(mUi.txtFilialeGia);
    segnaDelCaso(mUi.txtDataGiaOld);
}

void RicercaLdv::rigaMostrata(const Recordset& riga)
{
    segnaCliente(riga.valore(u"lecodi"_s).value_or(QString()));
}

void RicercaLdv::segnaCliente(const QString& suo)
{
    mClienteLdv = suo;
    const QString altrui = diAltroCliente();
    mUi.lblClienteLdv->setText(altrui);
    mUi.lblClienteLdv->setVisible(!altrui.isEmpty());
}

QString RicercaLdv::diAltroCliente() const
{
    // "01001" and "1001" are one customer.
    const bool altro =
        !mClienteLdv.isEmpty() && mClienteLdv.toLongLong() != mParti.cliente.codice().trimmed().toLongLong();
    return altro ? u"LDV del cliente %1"_s.arg(mClienteLdv) : QString();
}

void RicercaLdv::clienteCambiato()
{
    const QString prima = mUi.lblClienteLdv->text();
    segnaCliente(mClienteLdv);
    const QString altrui = mUi.lblClienteLdv->text();
    if (altrui == prima)
        return;
    if (!altrui.isEmpty())
        return mSchermata.stato(altrui);
    // What the line said of the customer is true no more.
    const QString detto = mUi.lblStato->text();
    if (detto.startsWith(prima))
        mSchermata.stato(detto.sliced(prima.size() + (detto.startsWith(prima + u". "_s) ? 2 : 0)));
}

void RicercaLdv::avvertiMotivo()
{
    const bool daRegistrare = !tag(mUi.txtLDV).isEmpty() && !mGiacente;
    mMotivo.mostra(daRegistrare && testo(mUi.txtDescGia).trimmed().isEmpty() ? u"manca"_s : QString());
}

void RicercaLdv::PulisciCampi()
{
    // After a mistyped number the clerk goes on with what he had typed for the right one.
    for (Ripristino* digitato : {mMotivoDigitato, mFilialeDigitata})
        digitato->ricorda(!mTrovata);
    // Typed beside a shipment it is that one's, saved or not.
    if (mTrovata)
        segnaDelCaso(mUi.txtDataGiaOld);
    mTrovata = false;
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
    segnaCliente({});
    segnaGiacenza(false);
}

QString RicercaLdv::offerta() const
{
    const bool motivo = mMotivoDigitato->pronto();
    const bool filiale = mFilialeDigitata->pronto();
    if (motivo && filiale)
        return u"La ricerca ha svuotato motivo e filiale della giacenza: Ctrl+Z nel campo li riporta."_s;
    if (motivo)
        return u"La ricerca ha svuotato il motivo della giacenza: Ctrl+Z nel campo lo riporta."_s;
    return filiale ? u"La ricerca ha svuotato la filiale della giacenza: Ctrl+Z nel campo la riporta."_s
                   : QString();
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

Seguito RicercaLdv::lasciaFiliale()
{
    ChiaveRicerca* chiave =
        mUi.txtFiliale->text().trimmed().isEmpty() ? nullptr : std::exchange(mSenzaFiliale, nullptr);
    if (!chiave)
        return {};
    return mSchermata.gestore([this, chiave] { prosegui(ricerca(*chiave)); });
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

bool RicercaLdv::RicercaSpedizione(ChiaveRicerca& chiave)
{
    const auto presente = [](const QString& numero) { return !numero.isEmpty(); };
    if (!mParti.cliente.scelto() || !mElenco.ControllaImmissione(chiave, presente))
        return false;
    const auto scelta = mElenco.RicercaSpedizione(chiave);
    cercate();
    if (!scelta) {
        if (!mUi.txtFiliale->text().isEmpty())
            return false;
        mSenzaFiliale = &chiave;
        mSchermata.stato(u"L'elenco mostra solo le spedizioni della filiale scritta: scrivere la filiale."_s);
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
    mSenzaFiliale = nullptr;
}

bool RicercaLdv::mostra(const QString& istruzione, const QString& nonTrovata)
{
    mTrovata = mParti.spedizione.mostra(istruzione);
    if (mTrovata) {
        if (!mGiacente)
            mParti.dataGiacenza.sostituisciAvanzo();
        avvertiMotivo();
        scrivi(mUi.barLdv, u"%1 del %2"_s.arg(tag(mUi.txtLDV), testo(mUi.txtDataLdv)));
    }
    QString detto = mTrovata ? diAltroCliente() : nonTrovata;
    if (!detto.isEmpty() && !offerta().isEmpty())
        detto += mTrovata ? u". "_s : u" "_s;
    mParti.spedizione.stato(detto + offerta());
    return mTrovata;
}

void RicercaLdv::prosegui(bool trovata)
{
    if (trovata)
        mUi.txtFilialeGia->setFocus(Qt::TabFocusReason);
}

} // namespace giacenza
