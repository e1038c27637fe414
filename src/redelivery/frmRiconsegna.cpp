#include "redelivery/frmRiconsegna.h"

#include "base/impostazioni.h"
#include "database/valori.h"
#include "ui_frmRiconsegna.h"
#include "widgets/tasti.h"

#include <QEvent>

using namespace Qt::StringLiterals;

namespace giacenza {

frmRiconsegna::frmRiconsegna()
    : Schermata(u"frmRiconsegna"_s), mUi(creaForma<Ui::frmRiconsegna>(this)),
      mParti(*this, ControlliComuni::di(*mUi), mappaRiconsegna(),
             {.cliente = {.titoloErrato = titoloGestione}, .senzaRiquadri = true}),
      mElenco(*this, mParti.cliente, mUi->txtFiliale),
      mNumero(*this, ModoRicerca::letteraVettura, mUi->txtLDV, mUi->txtDataLdv,
              silenzioso([this] { cercaNellElenco(mNumero); })),
      mRiferimento(*this, ModoRicerca::riferimento, mUi->txtRiferimento, mUi->txtDataRif,
                   silenzioso([this] { cercaNellElenco(mRiferimento); })),
      mEmissione(*this, *mUi, mParti)
{
    collega();
}

frmRiconsegna::~frmRiconsegna()
{
    congeda();
}

void frmRiconsegna::collega()
{
    connect(mUi->cmdRiconsegna, &QPushButton::clicked, this, gestore([this] { mEmissione.riconsegna(); }));
    connect(mUi->cmdRicGiac, &QPushButton::clicked, this, silenzioso([this] { cercaGiacenza(); }));
    connect(mUi->cmdRicSped, &QPushButton::clicked, this, silenzioso([this] { mostraRiconsegne(); }));
    collega(mNumero, mUi->cmdCercaLdv);
    collega(mRiferimento, mUi->cmdCercaRif);
    suTasto(mUi->txtLDV, Qt::Key_F12, silenzioso([this] { cercaPerNumero(); }));
    suTasto(mUi->txtRiferimento, Qt::Key_F12, silenzioso([this] { cercaNellElenco(mRiferimento); }));
    convalida().aggiungi(mUi->txtFilialeGia, [this] { return convalidaFilialeGia(); });
}

void frmRiconsegna::collega(ChiaveRicerca& chiave, QPushButton* bottone)
{
    connect(bottone, &QPushButton::clicked, this, silenzioso([this, &chiave] { cercaNellElenco(chiave); }));
    convalida().aggiungi(chiave.campoData(), [this, &chiave] { return lascia(chiave); });
}

void frmRiconsegna::carica()
{
    Schermata::carica();
    mParti.riempi();
    setWindowTitle(etichettaReso(impostazioni().movimento));
}

bool frmRiconsegna::event(QEvent* evento)
{
    // The host may choose the other job while the screen is open: showing it again raises it.
    switch (evento->type()) {
    case QEvent::Show:
    case QEvent::WindowActivate:
    case QEvent::ZOrderChange:
        setWindowTitle(etichettaReso(impostazioni().movimento));
        break;
    default:
        break;
    }
    return Schermata::event(evento);
}

void frmRiconsegna::setCodiceCliente(const QString& codice)
{
    mCodiceCliente = codice;
    mConsegna.arrivata();
}

void frmRiconsegna::attivata()
{
    mConsegna.attivata();
}

void frmRiconsegna::eseguiConsegna()
{
    const QString filiale = std::exchange(mFilialeLdv, {}).trimmed();
    const QString giacenza = std::exchange(mNumeroGiacenza, {}).trimmed();
    const auto giorno = leggiData(mDataLdv);
    if (mNLettVett.isEmpty() || mCodiceCliente.isEmpty() || !giorno)
        return;
    mAttesa = {mNLettVett, *giorno, filiale, giacenza};
    // The code of an earlier hand-over is locked: this one's takes its place.
    if (const Seguito rifiuto = mParti.cliente.imposta(mCodiceCliente))
        durante(rifiuto);
    stato({});
    scrivi(mUi->txtLDV, mNLettVett);
    scrivi(mUi->txtDataLdv, dataBreve(*giorno));
    cercaPerNumero();
    mParti.cliente.ripetiGuasto();
}

std::function<void()> frmRiconsegna::silenzioso(std::function<void()> azione)
{
    return gestore([this, azione = std::move(azione)] {
        try {
            azione();
        } catch (const Errore& errore) {
            statoGuasto(errore);
        }
    });
}

bool frmRiconsegna::ControlloCampiRicerca(const ChiaveRicerca& chiave)
{
    return mElenco.ControllaImmissione(chiave, eNumero);
}

void frmRiconsegna::cercaNellElenco(const ChiaveRicerca& chiave)
{
    if (!ControlloCampiRicerca(chiave))
        return;
    if (const auto scelta = mElenco.RicercaSpedizione(chiave))
        mostra(scelta->numero, scelta->giorno);
}

void frmRiconsegna::cercaGiacenza()
{
    if (const auto scelta = mElenco.giacenze())
        mostra(scelta->numero, scelta->giorno);
}

void frmRiconsegna::cercaPerNumero()
{
    if (ControlloCampiRicerca(mNumero) && mParti.cliente.scelto())
        mostra(mNumero.valore(), *mNumero.giorno());
}

void frmRiconsegna::mostraRiconsegne()
{
    const auto giorno = mParti.dataGiacenza.giorno();
    if (mParti.caso.numero().isEmpty() || !giorno)
        return stato(u"Nessuna giacenza sullo schermo: non ci sono spedizioni da elencare."_s);
    mElenco.riconsegne({mParti.caso.numero(), giorno->year()});
}

void frmRiconsegna::mostra(const QString& numero, QDate giorno)
{
    mNumero.cercata();
    mRiferimento.cercata();
    if (!mParti.spedizione.mostra(
            istruzioni::spedizionePerNumeroData(numero, giorno, istruzioni::Giunzione::interna)))
        return stato(u"LDV %1 del %2: non trovata."_s.arg(numero, dataBreve(giorno)));
    scrivi(mUi->barLdv, u"%1 del %2"_s.arg(tag(mUi->txtLDV), testo(mUi->txtDataLdv)));
    const bool inGiacenza = !mParti.caso.numero().isEmpty();
    const QString altra = altraDaQuellaConsegnata(numero, giorno);
    trattieni(!altra.isEmpty());
    mParti.spedizione.stato(
        inGiacenza || !altra.isEmpty() ? altra : u"Questa lettera di vettura non è in giacenza."_s);
    // Without a date, as beside another held shipment's left-over, they would be the earlier one's.
    if (!mParti.dataGiacenza.giorno())
        scrivi(mUi->barGiorniSosta, {});
}

QString frmRiconsegna::altraDaQuellaConsegnata(const QString& numero, QDate giorno) const
{
    if (numero != mAttesa.numero || giorno != mAttesa.giorno)
        return {};
    const QString filiale = testo(mUi->txtFiliale).trimmed();
    if (!mAttesa.filiale.isEmpty() && filiale.compare(mAttesa.filiale, Qt::CaseInsensitive) != 0)
        return u"È stata trovata un'altra LDV con lo stesso numero e giorno (filiale %1)."_s.arg(filiale);
    const QString giacenza = mParti.caso.numero();
    if (mAttesa.giacenza.isEmpty() || giacenza == mAttesa.giacenza)
        return {};
    return giacenza.isEmpty()
               ? u"Questa LDV non è più nella giacenza %1."_s.arg(mAttesa.giacenza)
               : u"Questa LDV è nella giacenza %1, non nella %2."_s.arg(giacenza, mAttesa.giacenza);
}

void frmRiconsegna::trattieni(bool trattenuta)
{
    // A waybill that was issued put the button out for good.
    if (!mEmissione.emessa())
        mUi->cmdRiconsegna->setEnabled(!trattenuta);
}

Seguito frmRiconsegna::lascia(const ChiaveRicerca& chiave)
{
    if (!chiave.modificata() || chiave.data().isEmpty())
        return {};
    if (mParti.cliente.codice().isEmpty())
        return silenzioso([this] { mParti.cliente.scelto(); });
    if (chiave.valore().isEmpty() || !chiave.giorno())
        return {};
    if (!chiave.perNumero())
        return silenzioso([this, &chiave] { cercaNellElenco(chiave); });
    const auto cerca = silenzioso([this] { cercaPerNumero(); });
    if (!eNumero(chiave.valore()))
        return cerca;
    cerca();
    return {};
}

Seguito frmRiconsegna::convalidaFilialeGia()
{
    // The branch is checked as if it were a customer: the depot wants it so. Nothing is taken from what is
    // found, and the focus goes where it was going: a branch's code is often no number.
    return mParti.cliente.verifica(testo(mUi->txtFilialeGia).trimmed(),
                                   gestore([this] { mParti.cliente.diciErrato(); }));
}

} // namespace giacenza
