#include "redelivery/frmRiconsegna.h"

#include "base/impostazioni.h"
#include "screens/campi.h"
#include "screens/ricercaspedizione.h"
#include "ui_frmRiconsegna.h"
#include "widgets/tasti.h"

#include <QEvent>

using namespace Qt::StringLiterals;

namespace giacenza {

frmRiconsegna::frmRiconsegna() : Schermata(u"frmRiconsegna"_s), mUi(std::make_unique<Ui::frmRiconsegna>())
{
    mUi->setupUi(this);
    preparaComuni(mappaRiconsegna());
    collega();
}

frmRiconsegna::~frmRiconsegna() = default;

void frmRiconsegna::collega()
{
    connect(mUi->cmdRiconsegna, &QPushButton::clicked, this, gestore([this] { riconsegna(); }));
    connect(mUi->cmdRicGiac, &QPushButton::clicked, this,
            silenzioso([this] { cercaNellElenco(Modo::giacenze); }));
    connect(mUi->cmdRicSped, &QPushButton::clicked, this, silenzioso([this] { mostraRiconsegne(); }));
    connect(mUi->cmdCercaLdv, &QPushButton::clicked, this,
            silenzioso([this] { cercaNellElenco(Modo::letteraVettura); }));
    connect(mUi->cmdCercaRif, &QPushButton::clicked, this,
            silenzioso([this] { cercaNellElenco(Modo::riferimento); }));
    for (const Modo modo : {Modo::letteraVettura, Modo::riferimento}) {
        const auto elenco = silenzioso([this, modo] { cercaNellElenco(modo); });
        for (QLineEdit* riga : {campo(modo), static_cast<QLineEdit*>(campoData(modo))}) {
            connect(riga, &QLineEdit::textEdited, this,
                    [this, modo] { mModificata[modo == Modo::riferimento] = true; });
            suTasto(riga, Qt::Key_F9, elenco);
        }
        mConvalida->aggiungi(campoData(modo), [this, modo] { return lascia(modo); });
    }
    suTasto(mUi->txtLDV, Qt::Key_F12, silenzioso([this] { cercaPerNumero(); }));
    suTasto(mUi->txtRiferimento, Qt::Key_F12, silenzioso([this] { cercaNellElenco(Modo::riferimento); }));
    mConvalida->aggiungi(txtFilialeGia, [this] { return convalidaFilialeGia(); });
}

bool frmRiconsegna::event(QEvent* evento)
{
    // The host may choose the other job while the screen is open: showing it again raises it.
    switch (evento->type()) {
    case QEvent::Show:
    case QEvent::WindowActivate:
    case QEvent::ZOrderChange:
        setWindowTitle(impostazioni().etichettaReso);
        break;
    default:
        break;
    }
    return Schermata::event(evento);
}

QString frmRiconsegna::titoloClienteErrato() const
{
    return titoloGestione();
}

/// A handler on a screen where a database failure is told by the status line alone.
std::function<void()> frmRiconsegna::silenzioso(std::function<void()> azione)
{
    return gestore([this, azione = std::move(azione)] { prosegui(azione); });
}

void frmRiconsegna::prosegui(const std::function<void()>& azione)
{
    try {
        azione();
    } catch (const Errore& errore) {
        stato(errore.testo());
    }
}

QLineEdit* frmRiconsegna::campo(Modo modo) const
{
    return modo == Modo::riferimento ? mUi->txtRiferimento : mUi->txtLDV;
}

CampoData* frmRiconsegna::campoData(Modo modo) const
{
    return modo == Modo::riferimento ? mUi->txtDataRif : mUi->txtDataLdv;
}

QString frmRiconsegna::cercato(Modo modo) const
{
    return modo == Modo::riferimento ? testo(mUi->txtRiferimento) : numeroLdv(mUi->txtLDV);
}

bool frmRiconsegna::ControlloCampiRicerca(Modo modo)
{
    const bool perNumero = modo == Modo::letteraVettura;
    const QString valore = cercato(modo);
    if ((perNumero ? eNumero(valore) : !valore.isEmpty()) && eData(testo(campoData(modo))))
        return true;
    messaggio(perNumero ? u"Controllare l'immissione del num. Ldv e/o data Ldv"_s
                        : u"Controllare l'immissione del riferimento cliente e/o data rifer. cliente"_s,
              Stile::avviso);
    return false;
}

std::optional<SpedizioneScelta> frmRiconsegna::RicercaSpedizione(Modo modo)
{
    AperturaRicerca apertura = {.tipoRicerca = static_cast<int>(modo),
                                .captionLabel = u"Num. LDV"_s,
                                .ragioneSocialeCliente = barCliente->text(),
                                .cliente = txtCodiceCli->text(),
                                .filiale = mUi->txtFiliale->text()};
    switch (modo) {
    case Modo::riferimento:
        apertura.titolo = u"Ricerca per riferimento"_s;
        apertura.captionLabel = u"Riferimento"_s;
        apertura.riferimento = cercato(modo);
        apertura.annoOdata = testo(campoData(modo));
        break;
    case Modo::letteraVettura:
        apertura.titolo = u"Ricerca per lettera di vettura"_s;
        apertura.numero = cercato(modo);
        apertura.annoOdata = testo(campoData(modo));
        break;
    case Modo::riconsegne: {
        apertura.titolo = u"Spedizioni relative alla giacenza selezionata"_s;
        apertura.giacenza = testo(lblNrGia);
        const auto giorno = leggiData(testo(mUi->txtDataGia));
        apertura.annoGiacenza = giorno ? QString::number(giorno->year()) : QString();
        break;
    }
    case Modo::giacenze:
        apertura.titolo = u"Ricerca Giacenze"_s;
        break;
    }
    const QPointer<const Schermata> io(this);
    const auto scelta = apriRicercaSpedizione(this, apertura);
    restaAperta(io);
    return scelta;
}

void frmRiconsegna::cercaNellElenco(Modo modo)
{
    if (modo != Modo::giacenze && !ControlloCampiRicerca(modo))
        return;
    const auto scelta = RicercaSpedizione(modo);
    const auto giorno = scelta ? leggiData(scelta->data) : std::nullopt;
    if (giorno)
        mostra(scelta->numero, *giorno);
}

void frmRiconsegna::cercaPerNumero()
{
    if (ControlloCampiRicerca(Modo::letteraVettura) && clienteScelto())
        mostra(cercato(Modo::letteraVettura), *leggiData(testo(mUi->txtDataLdv)));
}

void frmRiconsegna::mostraRiconsegne()
{
    if (testo(lblNrGia).isEmpty() || !eData(testo(mUi->txtDataGia)))
        return stato(u"Nessuna giacenza sullo schermo: non ci sono spedizioni da elencare."_s);
    RicercaSpedizione(Modo::riconsegne);
}

void frmRiconsegna::mostra(const QString& numero, QDate giorno)
{
    mModificata[0] = mModificata[1] = false;
    if (!mostraSpedizione(
            istruzioni::spedizionePerNumeroData(numero, giorno, istruzioni::Giunzione::interna)))
        return stato(u"LDV %1 del %2: non trovata."_s.arg(numero, dataBreve(giorno)));
    scrivi(mUi->barLdv, u"%1 del %2"_s.arg(tag(mUi->txtLDV), testo(mUi->txtDataLdv)));
    const bool inGiacenza = !testo(lblNrGia).isEmpty();
    stato(inGiacenza ? QString() : u"Questa lettera di vettura non è in giacenza."_s);
    if (inGiacenza)
        return;
    // They belong to the date and the branch of another held shipment, which stand beside them as left-overs.
    scrivi(barGiorniSosta, {});
    scrivi(barFilialeGia, {});
}

Seguito frmRiconsegna::lascia(Modo modo)
{
    if (!mModificata[modo == Modo::riferimento] || cercato(modo).isEmpty() || !eData(testo(campoData(modo))))
        return {};
    if (modo == Modo::riferimento)
        return silenzioso([this, modo] {
            if (clienteScelto())
                cercaNellElenco(modo);
        });
    const auto cerca = silenzioso([this] { cercaPerNumero(); });
    if (txtCodiceCli->text().isEmpty() || !eNumero(cercato(modo)))
        return cerca;
    cerca();
    return {};
}

Seguito frmRiconsegna::convalidaFilialeGia()
{
    // The branch is checked as if it were a customer: the depot wants it so. Nothing is taken from what is
    // found, and the focus goes where it was going: a branch's code is often no number.
    return verificaCliente(txtFilialeGia->text().trimmed(), gestore([this] {
                               messaggio(clienteErrato(), Stile::avviso, titoloClienteErrato());
                           }));
}

} // namespace giacenza
