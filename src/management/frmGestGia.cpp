#include "management/frmGestGia.h"

#include "database/recordset.h"
#include "dialogs/frmRifiuto.h"
#include "ui_frmGestGia.h"
#include "widgets/annuncio.h"

using namespace Qt::StringLiterals;

namespace giacenza {

frmGestGia::frmGestGia()
    : Schermata(u"frmGestGia"_s), mUi(creaForma<Ui::frmGestGia>(this)),
      mParti(*this, ControlliComuni::di(*mUi), mappaGestione(),
             {.rigaMostrata = [this](const Recordset& riga) { rigaMostrata(riga); },
              .avvertenzaFiliale = mUi->lblAvvFilialeGia}),
      mRichiamo(*this, *mUi, mParti,
                [this] {
                    mAvvisi.clear();
                    mUi->lblClienteCaso->clear();
                    mostraStatoCaso();
                }),
      mAvviso(*this, mParti, mUi->lblDataAvviso,
              {.chiave = [](const ChiaveGiacenza& caso) { return caso; },
               .ammesso = [this] { return avvisoAmmesso(); },
               .contato =
                   [this](int numero) {
                       mAvvisi = QString::number(numero);
                       mostraStatoCaso();
                   }}),
      mChiusura(*this, *mUi, mParti, [this] { mostraStatoCaso(); })
{
    collega();
    mostraStatoCaso();
}

frmGestGia::~frmGestGia()
{
    congeda();
}

void frmGestGia::collega()
{
    connect(mUi->txtDescGia, &CampoTesto::tagliato, this,
            [this] { stato(u"Il testo incollato era troppo lungo: se ne è tenuto l'inizio."_s); });
    connect(mUi->cmdAvvisoGia, &QPushButton::clicked, this, gestore([this] { emettiAvviso(); }));
    connect(mUi->cmdRistampa, &QPushButton::clicked, this,
            gestore([this] { mAvviso.EmettiAvvisoGiacenza(true); }));
    connect(mUi->cmdBuonFine, &QPushButton::clicked, this, gestore([this] { mChiusura.ChiudiGiacenza(); }));
}

void frmGestGia::carica()
{
    Schermata::carica();
    mParti.riempi();
}

void frmGestGia::attivata()
{
    mRichiamo.ImpostaModoRicerca(false);
    mConsegna.attivata();
}

void frmGestGia::setNumeroGiacenza(const QString& numero)
{
    mNumeroGiacenza = numero;
    mConsegna.arrivata();
}

void frmGestGia::emettiAvviso()
{
    if (!mParti.caso.chiave())
        return;
    const QString chiusura = testo(mUi->lblDataBuonFine);
    if (eData(chiusura)) {
        messaggio(u"La giacenza risulta chiusa,in data: %1."_s.arg(chiusura), Stile::informazione,
                  titoloGestione());
        return;
    }
    const QString riga = modale(std::make_unique<frmRifiuto>(this), [](const frmRifiuto& rifiuto) {
        return rifiuto.Confermato()
                   ? u"\n%1 - %2"_s.arg(dataBreve(rifiuto.DataRifiuto()), rifiuto.MotivazioneRifiuto())
                   : QString();
    });
    if (riga.isEmpty())
        return;
    const QString prima = testo(mUi->txtDescGia);
    scrivi(mUi->txtDescGia, prima + riga);
    try {
        mAvviso.EmettiAvvisoGiacenza(false, testo(mUi->txtDescGia));
    } catch (const std::exception&) {
        // Nothing was written: the next try would lengthen the description once more.
        scrivi(mUi->txtDescGia, prima);
        throw;
    }
}

void frmGestGia::rigaMostrata(const Recordset& riga)
{
    mAvvisi = riga.valore(u"GINRAV"_s).value_or(QString());
    mostraStatoCaso();
    const QString codice = riga.valore(u"GICODI"_s).value_or(QString());
    // The name is shown where it is known already: it is worth no statement.
    const bool noto = !codice.isEmpty() && codice == mParti.cliente.codice().trimmed();
    const QString cliente = noto ? codice + u' ' + mParti.cliente.ragioneSociale() : codice;
    mUi->lblClienteCaso->setText(codice.isEmpty() ? QString() : u"Cliente %1"_s.arg(cliente));
    mUi->lblClienteCaso->setToolTip(mUi->lblClienteCaso->text());
}

bool frmGestGia::avvisoAmmesso()
{
    if (!eData(testo(mUi->lblDataBuonFine)))
        return true;
    messaggio(u"E' già stato rilasciato il buon fine per questa giacenza."_s, Stile::avviso);
    return false;
}

void frmGestGia::mostraStatoCaso()
{
    const bool chiusa = eData(testo(mUi->lblDataBuonFine));
    const QString avvisi = mAvvisi.isEmpty()   ? u"NESSUN AVVISO"_s
                           : mAvvisi == u"1"_s ? u"1 AVVISO"_s
                                               : u"%1 AVVISI"_s.arg(mAvvisi);
    mUi->lblStatoCaso->setText((chiusa ? u"CHIUSA · "_s : u"APERTA · "_s) + avvisi);
    mUi->lblStatoCaso->setProperty("chiusa", chiusa);
    rinnovaAspetto(mUi->lblStatoCaso);
    mUi->lblStatoCaso->setVisible(!testo(mUi->lblNrGia).isEmpty());
    annuncia(mUi->lblStatoCaso);
}

} // namespace giacenza
