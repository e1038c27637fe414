#include "management/frmGestGia.h"

#include "base/orologio.h"
#include "database/recordset.h"
#include "screens/campi.h"
#include "ui_frmGestGia.h"
#include "widgets/tasti.h"

#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace giacenza {

using istruzioni::Giunzione;

frmGestGia::frmGestGia() : SchermataCaso(u"frmGestGia"_s), mUi(std::make_unique<Ui::frmGestGia>())
{
    mUi->setupUi(this);
    preparaComuni(mappaGestione());
    collega();
    ImpostaModoRicerca(false);
    mostraStatoCaso();
}

frmGestGia::~frmGestGia() = default;

void frmGestGia::collega()
{
    connect(mUi->chkRicerca, &QCheckBox::clicked, this, &frmGestGia::ImpostaModoRicerca);
    connect(mUi->cmdRicGiac, &QPushButton::clicked, this, gestore([this] { richiama(); }));
    connect(mUi->cmdAvvisoGia, &QPushButton::clicked, this, gestore([this] { emettiAvviso(); }));
    connect(mUi->cmdRistampa, &QPushButton::clicked, this, gestore([this] { ristampa(); }));
    connect(mUi->cmdBuonFine, &QPushButton::clicked, this, gestore([this] { ChiudiGiacenza(); }));

    mConvalida->aggiungi(mUi->txtNGiace, [this] {
        if (!mRichiamando)
            PulisciCampi();
        return Seguito();
    });
    mConvalida->aggiungi(mUi->txtDataGiace, [this] { return convalidaDataGiace(); });
    for (const Qt::Key invio : {Qt::Key_Return, Qt::Key_Enter}) {
        suTasto(mUi->txtNGiace, invio, [this] { mUi->txtDataGiace->setFocus(); });
        suTasto(mUi->txtDataGiace, invio, gestore([this] { richiama(); }));
    }
}

void frmGestGia::attivata()
{
    Schermata::attivata();
    ImpostaModoRicerca(false);
}

void frmGestGia::ImpostaModoRicerca(bool perCliente)
{
    mUi->chkRicerca->setText(perCliente ? u"Ric. cod. cliente"_s : u"Ric. per n. giacenza"_s);
    const std::initializer_list<QWidget*> perNumero = {mUi->lblGiace, mUi->txtNGiace, mUi->lblDataGiace,
                                                       mUi->txtDataGiace};
    for (QWidget* controllo : perNumero)
        controllo->setEnabled(!perCliente);
    const std::initializer_list<QWidget*> delCliente = {mUi->lblCliente, txtCodiceCli, barCliente,
                                                        cmdCercaCliente};
    for (QWidget* controllo : delCliente)
        controllo->setEnabled(perCliente);
    if (perCliente)
        bloccaCliente(false);
}

void frmGestGia::PulisciCampi()
{
    pulisciFuoriDa({mUi->txtNGiace});
}

void frmGestGia::pulisciFuoriDa(const QList<QWidget*>& tenuti)
{
    const auto daPulire = [&](const QWidget* controllo) {
        // The line of an editable list is the list's own.
        return !tenuti.contains(controllo) && !qobject_cast<QComboBox*>(controllo->parentWidget());
    };
    const auto righe = findChildren<QLineEdit*>();
    for (QLineEdit* riga : righe)
        if (daPulire(riga))
            scrivi(riga, {});
    const auto blocchi = findChildren<QPlainTextEdit*>();
    for (QPlainTextEdit* blocco : blocchi)
        scrivi(blocco, {});
    cmbPorto->setCurrentIndex(-1);
    for (QLabel* barra : {barCliente, mUi->barVettore, mUi->barLineaCli})
        if (daPulire(barra))
            scrivi(barra, {});
    if (daPulire(txtCodiceCli))
        bloccaCliente(false);
    const QString oggiBreve = dataBreve(oggi());
    scrivi(txtDataGia, oggiBreve);
    scrivi(lblDataLav, oggiBreve);
    pulisciEsito();
}

void frmGestGia::pulisciEsito()
{
    for (QLabel* etichetta : {mUi->barFilSped, barFilialeGia, barGiorniSosta, lblDataAvviso, lblDataBuonFine,
                              lblNrGia, mUi->lblFattura})
        scrivi(etichetta, {});
    bloccaChiave(false);
    mAvvisi.clear();
    mostraStatoCaso();
    stato({});
}

Seguito frmGestGia::convalidaDataGiace()
{
    const QString digitata = testo(mUi->txtDataGiace);
    if (digitata.isEmpty() || eData(digitata))
        return {};
    return rifiuta(mUi->txtDataGiace, u"Inserire una data valida."_s, Stile::avviso);
}

void frmGestGia::richiama()
{
    if (mUi->chkRicerca->isChecked())
        richiamaPerCliente();
    else
        richiamaPerNumero();
}

void frmGestGia::richiamaPerNumero()
{
    const QString numero = mUi->txtNGiace->text();
    if (numero.isEmpty()) {
        messaggio(u"Manca il numero della giacenza."_s, Stile::avviso, titoloGestione());
        mUi->txtNGiace->setFocus();
        return;
    }
    const auto giorno = leggiData(testo(mUi->txtDataGiace));
    if (!giorno) {
        messaggio(u"Manca la data della giacenza."_s, Stile::avviso, titoloGestione());
        return;
    }
    if (mostra(istruzioni::spedizionePerGiacenza(numero, *giorno)))
        return;
    pulisciFuoriDa({mUi->txtNGiace, mUi->txtDataGiace, txtCodiceCli, barCliente});
    messaggio(u"Giacenza: %1 del %2 non trovata."_s.arg(numero, dataBreve(*giorno)), Stile::avviso,
              titoloGestione());
}

void frmGestGia::richiamaPerCliente()
{
    // A shortcut moves no focus: a customer code that was just typed is checked first.
    if (const Seguito seguito = mConvalida->verificaCorrente())
        return seguito();
    const auto scelta = RicercaSpedizione();
    const auto giorno = scelta ? leggiData(scelta->data) : std::nullopt;
    if (!giorno)
        return;
    if (mostra(istruzioni::spedizionePerNumeroData(scelta->numero, *giorno, Giunzione::interna)))
        return;
    pulisciFuoriDa({mUi->txtNGiace, mUi->txtDataGiace, txtCodiceCli, barCliente});
    stato(u"LDV %1 del %2: non si può richiamare, manca il vettore, la linea o la filiale."_s.arg(
        scelta->numero, scelta->data));
}

std::optional<SpedizioneScelta> frmGestGia::RicercaSpedizione()
{
    const QPointer<const Schermata> io(this);
    auto scelta = apriRicercaSpedizione(this, {.tipoRicerca = 11,
                                               .titolo = u"Ricerca giacenze del cliente"_s,
                                               .captionLabel = u"Giacenza"_s,
                                               .ragioneSocialeCliente = barCliente->text(),
                                               .cliente = txtCodiceCli->text().trimmed()});
    restaAperta(io);
    return scelta;
}

bool frmGestGia::mostra(const QString& istruzione)
{
    pulisciEsito();
    if (!mostraSpedizione(istruzione))
        return false;
    bloccaChiave(!testo(lblNrGia).isEmpty());
    // The number field, when the focus leaves it for this, must not clear what was just brought up.
    const QScopedValueRollback<bool> richiamo(mRichiamando, true);
    mUi->txtFilSped->setFocus();
    return true;
}

void frmGestGia::rigaMostrata(const Recordset& riga)
{
    mAvvisi = riga.valore(u"GINRAV"_s).value_or(QString());
    mostraStatoCaso();
}

void frmGestGia::bloccaChiave(bool bloccata)
{
    txtDataGia->setReadOnly(bloccata);
    rinnovaAspetto(txtDataGia);
    for (QWidget* campo : {mUi->txtRiferimento, mUi->txtAnnoRif, mUi->txtFiliale, mUi->txtLDV})
        campo->setEnabled(true);
}

void frmGestGia::mostraStatoCaso()
{
    const bool chiusa = eData(testo(lblDataBuonFine));
    const QString avvisi = mAvvisi.isEmpty()   ? u"NESSUN AVVISO"_s
                           : mAvvisi == u"1"_s ? u"1 AVVISO"_s
                                               : u"%1 AVVISI"_s.arg(mAvvisi);
    mUi->lblStatoCaso->setText((chiusa ? u"CHIUSA · "_s : u"APERTA · "_s) + avvisi);
    mUi->lblStatoCaso->setProperty("chiusa", chiusa);
    rinnovaAspetto(mUi->lblStatoCaso);
    mUi->lblStatoCaso->setVisible(!testo(lblNrGia).isEmpty());
}

} // namespace giacenza
