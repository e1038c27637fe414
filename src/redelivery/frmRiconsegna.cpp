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
             {.cliente = {.titoloErrato = titoloGestione}}),
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
    const auto giorno = leggiData(mDataLdv);
    if (mNLettVett.isEmpty() || mCodiceCliente.isEmpty() || !giorno)
        return;
    // The code of an earlier hand-over is locked: this one's takes its place.
    if (const Seguito rifiuto = mParti.cliente.imposta(mCodiceCliente))
        durante(rifiuto);
    scrivi(mUi->txtLDV, mNLettVett);
    scrivi(mUi->txtDataLdv, dataBreve(*giorno));
    cercaPerNumero();
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
    stato(inGiacenza ? QString() : u"Questa lettera di vettura non è in giacenza."_s);
    if (inGiacenza)
        return;
    // They belong to the date and the branch of another held shipment, which stand beside them as left-overs.
    scrivi(mUi->barGiorniSosta, {});
    scrivi(mUi->barFilialeGia, {});
}

Seguito frmRiconsegna::lascia(const ChiaveRicerca& chiave)
{
    if (!chiave.modificata() || chiave.valore().isEmpty() || !chiave.giorno())
        return {};
    if (!chiave.perNumero())
        return silenzioso([this, &chiave] {
            if (mParti.cliente.scelto())
                cercaNellElenco(chiave);
        });
    const auto cerca = silenzioso([this] { cercaPerNumero(); });
    if (mParti.cliente.codice().isEmpty() || !eNumero(chiave.valore()))
        return cerca;
    cerca();
    return {};
}

Seguito frmRiconsegna::convalidaFilialeGia()
{
    // The branch is checked as if it were a customer: the depot wants it so. Nothing is taken from what is
    // found, and the focus goes where it was going: a branch's code is often no number.
    return mParti.cliente.verifica(mUi->txtFilialeGia->text().trimmed(),
                                   gestore([this] { mParti.cliente.diciErrato(); }));
}

} // namespace giacenza
