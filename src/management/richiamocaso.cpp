#include "management/richiamocaso.h"

#include "database/valori.h"
#include "screens/rifiuto.h"
#include "ui_frmGestGia.h"
#include "widgets/tasti.h"

#include <QScopedValueRollback>

using namespace Qt::StringLiterals;

namespace giacenza {

RichiamoCaso::RichiamoCaso(Schermata& schermata, const Ui::frmGestGia& forma, PartiComuni& parti,
                           std::function<void()> tolto)
    : mSchermata(schermata), mUi(forma), mParti(parti), mElenco(schermata, parti.cliente, nullptr),
      mTolto(std::move(tolto))
{
    collega();
    ImpostaModoRicerca(false);
}

void RichiamoCaso::collega()
{
    QObject::connect(mUi.chkRicerca, &QCheckBox::clicked, &mSchermata,
                     [this](bool perCliente) { ImpostaModoRicerca(perCliente); });
    const auto richiamo = mSchermata.gestore([this] { richiama(); });
    QObject::connect(mUi.cmdRicGiac, &QPushButton::clicked, &mSchermata, richiamo);

    Convalida& convalida = mSchermata.convalida();
    convalida.aggiungi(mUi.txtNGiace, [this] {
        if (!mRichiamando)
            PulisciCampi();
        return Seguito();
    });
    convalida.aggiungi(mUi.txtDataGiace, [this] { return convalidaDataGiace(); });
    for (const Qt::Key invio : {Qt::Key_Return, Qt::Key_Enter}) {
        suTasto(mUi.txtNGiace, invio, [this] { mUi.txtDataGiace->setFocus(); });
        suTasto(mUi.txtDataGiace, invio, richiamo);
    }
}

void RichiamoCaso::ImpostaModoRicerca(bool perCliente)
{
    mUi.chkRicerca->setText(perCliente ? u"Ric. cod. cliente"_s : u"Ric. per n. giacenza"_s);
    const std::initializer_list<QWidget*> perNumero = {mUi.lblGiace, mUi.txtNGiace, mUi.lblDataGiace,
                                                       mUi.txtDataGiace};
    for (QWidget* controllo : perNumero)
        controllo->setEnabled(!perCliente);
    mUi.lblCliente->setEnabled(perCliente);
    mParti.cliente.abilita(perCliente);
}

void RichiamoCaso::PulisciCampi()
{
    pulisciFuoriDa({mUi.txtNGiace});
}

void RichiamoCaso::pulisciNonTrovata()
{
    pulisciFuoriDa({mUi.txtNGiace, mUi.txtDataGiace, mUi.txtCodiceCli});
}

void RichiamoCaso::pulisciFuoriDa(const QList<QWidget*>& tenuti)
{
    const auto daPulire = [&](const QWidget* controllo) {
        // The line of an editable list is the list's own; the customer sees to his code himself.
        return !tenuti.contains(controllo) && controllo != mUi.txtCodiceCli &&
               !qobject_cast<QComboBox*>(controllo->parentWidget());
    };
    const auto righe = mSchermata.findChildren<QLineEdit*>();
    for (QLineEdit* riga : righe)
        if (daPulire(riga))
            scrivi(riga, {});
    const auto blocchi = mSchermata.findChildren<QPlainTextEdit*>();
    for (QPlainTextEdit* blocco : blocchi)
        scrivi(blocco, {});
    scrivi(mUi.cmbPorto, {});
    mUi.cmbPorto->setCurrentIndex(-1);
    for (QLabel* barra : {mUi.barVettore, mUi.barLineaCli})
        scrivi(barra, {});
    if (!tenuti.contains(mUi.txtCodiceCli))
        mParti.cliente.pulisci();
    mParti.oggiNelleDate();
    pulisciEsito();
}

void RichiamoCaso::pulisciEsito()
{
    for (QLabel* etichetta : {mUi.barFilSped, mUi.barFilialeGia, mUi.barGiorniSosta, mUi.lblDataAvviso,
                              mUi.lblDataBuonFine, mUi.lblNrGia, mUi.lblFattura})
        scrivi(etichetta, {});
    bloccaChiave(false);
    mTolto();
    mSchermata.stato({});
}

Seguito RichiamoCaso::convalidaDataGiace()
{
    const QString digitata = testo(mUi.txtDataGiace);
    if (digitata.isEmpty() || eData(digitata))
        return {};
    return rifiuta(mSchermata, mUi.txtDataGiace, u"Inserire una data valida."_s, Stile::avviso);
}

void RichiamoCaso::richiama()
{
    if (mUi.chkRicerca->isChecked())
        richiamaPerCliente();
    else
        richiamaPerNumero();
}

void RichiamoCaso::consegna(const QString& numero, const QString& data)
{
    const auto giorno = leggiData(data);
    if (numero.isEmpty() || !giorno)
        return;
    // The screen may show a case of before.
    PulisciCampi();
    mUi.chkRicerca->setChecked(false);
    ImpostaModoRicerca(false);
    scrivi(mUi.txtNGiace, numero);
    scrivi(mUi.txtDataGiace, dataBreve(*giorno));
    richiama();
}

void RichiamoCaso::richiamaPerNumero()
{
    const QString numero = mUi.txtNGiace->text().trimmed();
    if (numero.isEmpty()) {
        mSchermata.messaggio(u"Manca il numero della giacenza."_s, Stile::avviso, titoloGestione());
        mUi.txtNGiace->setFocus();
        return;
    }
    const auto giorno = leggiData(testo(mUi.txtDataGiace));
    if (!giorno) {
        mSchermata.messaggio(u"Manca la data della giacenza."_s, Stile::avviso, titoloGestione());
        return;
    }
    if (mostra(istruzioni::spedizionePerGiacenza(numero, *giorno)))
        return;
    pulisciNonTrovata();
    mSchermata.messaggio(u"Giacenza: %1 del %2 non trovata."_s.arg(numero, dataBreve(*giorno)), Stile::avviso,
                         titoloGestione());
}

void RichiamoCaso::richiamaPerCliente()
{
    // A shortcut moves no focus: a customer code that was just typed is checked first.
    if (const Seguito seguito = mSchermata.convalida().verificaCorrente())
        return seguito();
    const auto scelta = mElenco.giacenze();
    if (!scelta || mostra(istruzioni::spedizionePerNumeroData(scelta->numero, scelta->giorno,
                                                              istruzioni::Giunzione::interna)))
        return;
    pulisciNonTrovata();
    mSchermata.stato(u"LDV %1 del %2: non si può richiamare, manca il vettore, la linea o la filiale."_s.arg(
        scelta->numero, dataBreve(scelta->giorno)));
}

bool RichiamoCaso::mostra(const QString& istruzione)
{
    // What the clerk, or a notice, wrote about the case that goes is not the next one's.
    if (!mParti.caso.numero().isEmpty())
        segnaDelCaso(mUi.txtDescGia);
    pulisciEsito();
    if (!mParti.spedizione.mostra(istruzione))
        return false;
    mParti.spedizione.stato({});
    bloccaChiave(!mParti.caso.numero().isEmpty());
    // The number field, when the focus leaves it for this, must not clear what was just brought up.
    const QScopedValueRollback<bool> richiamo(mRichiamando, true);
    mUi.txtFilSped->setFocus();
    return true;
}

void RichiamoCaso::bloccaChiave(bool bloccata)
{
    mUi.txtDataGia->setReadOnly(bloccata);
    rinnovaAspetto(mUi.txtDataGia);
    for (QWidget* campo : {mUi.txtRiferimento, mUi.txtAnnoRif, mUi.txtFiliale, mUi.txtLDV})
        campo->setEnabled(true);
}

} // namespace giacenza
