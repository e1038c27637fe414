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
              schermata.gestore([this] { RicercaSpedizione(mNumero); })),
      mRiferimento(schermata, ModoRicerca::riferimento, forma.txtRiferimento, forma.txtDataRif,
                   schermata.gestore([this] { RicercaSpedizione(mRiferimento); })),
      mMotivo(forma.txtDescGia, forma.lblAvvMotivo), mMotivoDigitato(new Ripristino(forma.txtDescGia)),
      mFilialeDigitata(new Ripristino(forma.txtFilialeGia))
{
    collega(mNumero, forma.cmdCercaLdv);
    collega(mRiferimento, forma.cmdCercaRif);
    suTasto(forma.txtFiliale, Qt::Key_F9, schermata.gestore([this] { RicercaSpedizione(mNumero); }));
    QObject::connect(&parti.spedizione.campi(), &CampiSchermata::giacenzaLetta, &schermata,
                     [this](bool giacente) { segnaGiacenza(giacente); });
    schermata.convalida().aggiungi(forma.txtFiliale, [this] { return lasciaFiliale(); });
    QObject::connect(forma.txtDescGia, &QPlainTextEdit::textChanged, &schermata, [this] { avvertiMotivo(); });
    segnaGiacenza(false);
    forma.lblClienteLdv->hide();
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
    mGiacente = giacente;
    mUi.lblGiaInGiacenza->setVisible(giacente);
    avvertiMotivo();
}

void RicercaLdv::rigaMostrata(const Recordset& riga)
{
    const QString suo = riga.valore(u"lecodi"_s).value_or(QString());
    // "01001" and "1001" are one customer.
    const bool altro = !suo.isEmpty() && suo.toLongLong() != mParti.cliente.codice().trimmed().toLongLong();
    mUi.lblClienteLdv->setText(altro ? u"LDV del cliente %1"_s.arg(suo) : QString());
    mUi.lblClienteLdv->setVisible(altro);
}

QString RicercaLdv::diAltroCliente() const
{
    return mUi.lblClienteLdv->text();
}

void RicercaLdv::avvertiMotivo()
{
    const bool daRegistrare = !tag(mUi.txtLDV).isEmpty() && !mGiacente;
    mMotivo.mostra(daRegistrare && testo(mUi.txtDescGia).trimmed().isEmpty() ? u"manca"_s : QString());
}

void RicercaLdv::PulisciCampi()
{
    mMotivoDigitato->ricorda();
    mFilialeDigitata->ricorda();
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
    mUi.lblClienteLdv->clear();
    mUi.lblClienteLdv->hide();
    segnaGiacenza(false);
    mSchermata.stato(
        mMotivoDigitato->pronto() || mFilialeDigitata->pronto()
            ? u"La ricerca ha svuotato motivo e filiale della giacenza: Ctrl+Z nel campo li riporta."_s
            : QString());
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

Seguito RicercaLdv::lasciaFiliale()
{
    ChiaveRicerca* chiave =
        mUi.txtFiliale->text().trimmed().isEmpty() ? nullptr : std::exchange(mSenzaFiliale, nullptr);
    if (!chiave)
        return {};
    return mSchermata.gestore([this, chiave] { ricerca(*chiave); });
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

void RicercaLdv::RicercaSpedizione(ChiaveRicerca& chiave)
{
    const auto presente = [](const QString& numero) { return !numero.isEmpty(); };
    if (!mParti.cliente.scelto() || !mElenco.ControllaImmissione(chiave, presente))
        return;
    const auto scelta = mElenco.RicercaSpedizione(chiave);
    cercate();
    if (!scelta) {
        if (!mUi.txtFiliale->text().isEmpty())
            return;
        mSenzaFiliale = &chiave;
        return mSchermata.stato(
            u"L'elenco mostra solo le spedizioni della filiale scritta: scrivere la filiale."_s);
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
    mSenzaFiliale = nullptr;
}

void RicercaLdv::mostra(const QString& istruzione, const QString& nonTrovata)
{
    if (!mParti.spedizione.mostra(istruzione))
        return mSchermata.stato(nonTrovata);
    if (!mGiacente)
        mParti.dataGiacenza.sostituisciAvanzo();
    avvertiMotivo();
    scrivi(mUi.barLdv, u"%1 del %2"_s.arg(tag(mUi.txtLDV), testo(mUi.txtDataLdv)));
}

} // namespace giacenza
