#include "search/frmRicerca.h"

#include "ui_frmRicerca.h"

#include "base/errorenumerato.h"
#include "base/spiegazioni.h"
#include "data/archivio.h"
#include "search/controlloricerca.h"
#include "widgets/attesa.h"
#include "widgets/limitetesto.h"
#include "widgets/secondoclic.h"
#include "widgets/tasti.h"

#include <QGuiApplication>
#include <QPointer>
#include <QShowEvent>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

enum RuoloVoce
{
    ruoloCodice = Qt::UserRole,
    ruoloRagioneSociale
};

/// How many rows are read at once: more than fit on a screen, so that the list shows that it goes on.
constexpr int paginaSoggetti = 256;

/// The captions that a kind of party gives the dialog and the code option.
struct Didascalie
{
    QString finestra;
    QString codice;
};

Didascalie didascalie(qint16 tipo)
{
    switch (tipo) {
    case 1:
        return {u"Ricerca Cliente"_s, u"Cod. Cliente"_s};
    case 2:
        return {u"Ricerca Fornitore"_s, u"Cod.Fornitore"_s};
    case 3:
        return {u"Ricerca Destinatario"_s, u"Cod.Destinatario"_s};
    default:
        return {u"Prove tecniche di trasmissione"_s, u"Codice"_s};
    }
}

/// Tells a failure that none of the numbered messages is for.
Messaggio messaggioGuasto(const Errore& errore)
{
    const auto* database = dynamic_cast<const ErroreDatabase*>(&errore);
    if (!database)
        return {errore.testo(), Stile::critico, titoloApplicazione()};
    const QString frase = database->sqlstate().startsWith(u"08"_s)
                              ? u"Il collegamento con il database non riesce o si è interrotto."_s
                              : u"La ricerca nel database non è riuscita."_s;
    return {frase + u"\n\n"_s + spiega(errore), Stile::critico, titoloApplicazione()};
}

} // namespace

frmRicerca::frmRicerca(QWidget* parent) : QDialog(parent), mUi(std::make_unique<Ui::frmRicerca>())
{
    mUi->setupUi(this);
    limitaCampi(this);
    // The captions are quoted whole, so this option's key is not marked in its text.
    mUi->optCodice->setShortcut(QKeySequence(Qt::ALT | Qt::Key_C));
    setClienti_Fornitori(mClientiFornitori);
    opzioneScelta();
    collega();
}

frmRicerca::~frmRicerca() = default;

void frmRicerca::collega()
{
    for (QAbstractButton* opzione :
         {mUi->optCodice, mUi->optIva, mUi->optRagSoc, mUi->optLocalita, mUi->optProvincia})
        connect(opzione, &QAbstractButton::clicked, this, &frmRicerca::opzioneScelta);
    connect(mUi->cmdRicerca, &QPushButton::clicked, this, [this] { prova([this] { cerca(); }); });
    connect(mUi->cmdAnnulla, &QPushButton::clicked, this, &QDialog::reject);
    connect(mUi->lstCerca, &ListaScelta::finePagina, this, [this] { prova([this] { CaricaLista(); }); });
    connect(mUi->lstCerca, &ListaScelta::scelta, this, &frmRicerca::scegli);
    suTasto(mUi->txtCerca, Qt::Key_Down, [this] { mUi->lstCerca->entraDaTasto(); });
}

void frmRicerca::setClienti_Fornitori(qint16 tipo)
{
    mClientiFornitori = tipo;
    const Didascalie testi = didascalie(tipo);
    setWindowTitle(testi.finestra);
    const QKeySequence tasto = mUi->optCodice->shortcut();
    mUi->optCodice->setText(testi.codice);
    mUi->optCodice->setShortcut(tasto);
}

CampoSoggetto frmRicerca::campo() const
{
    if (mUi->optCodice->isChecked())
        return CampoSoggetto::codice;
    if (mUi->optIva->isChecked())
        return CampoSoggetto::partitaIva;
    if (mUi->optLocalita->isChecked())
        return CampoSoggetto::localita;
    return mUi->optProvincia->isChecked() ? CampoSoggetto::provincia : CampoSoggetto::ragioneSociale;
}

void frmRicerca::opzioneScelta()
{
    const bool intero = campo() == CampoSoggetto::codice || campo() == CampoSoggetto::partitaIva;
    if (intero)
        mUi->optIniziale->setChecked(true);
    mUi->optIniziale->setEnabled(!intero);
    mUi->optInterna->setEnabled(!intero);
    mUi->fraTipoStringa->setEnabled(!intero);
    mUi->txtCerca->setEnabled(true);
    abilitaElenco(false);
}

void frmRicerca::abilitaElenco(bool abilita)
{
    mUi->lstCerca->setEnabled(abilita);
    QPalette colori = mUi->lstCerca->palette();
    const QPalette sistema = QGuiApplication::palette();
    colori.setColor(QPalette::Base, sistema.color(abilita ? QPalette::Base : QPalette::Window));
    mUi->lstCerca->setPalette(colori);
}

void frmRicerca::prova(const std::function<void()>& azione)
{
    try {
        azione();
    } catch (const Errore& errore) {
        mostraErrore(errore);
    }
}

void frmRicerca::cerca()
{
    if (mInChiusura) {
        chiudi();
        return;
    }
    mCampoCercato = campo();
    ControllaCampoRicerca(mUi->txtCerca->text(), mCampoCercato);
    abilitaElenco(false);
    mUi->lstCerca->clear();
    mUi->lstCerca->setToolTip({});
    mNonTrovata = false;
    const Attesa attesa;
    mRicerca.cerca(accessoTracciato(mStringaConnessione),
                   {mNomeTabella, mCampoCercato, mUi->optInterna->isChecked(), mUi->txtCerca->text()});
    mNonTrovata = mRicerca.finita();
    if (mNonTrovata)
        sollevaErroreSoggetti(ErroreSoggetti::nonTrovato);
    CaricaLista();
    abilitaElenco(true);
}

void frmRicerca::CaricaLista()
{
    // Adding rows makes the list look for its end again.
    if (mCaricamento)
        return;
    mCaricamento = true;
    const auto guardia = qScopeGuard([this] { mCaricamento = false; });
    for (const Soggetto& soggetto :
         mRicerca.leggi(std::max(paginaSoggetti, mUi->lstCerca->righeVisibili() + 1))) {
        auto* nuova = new QListWidgetItem(voce(soggetto), mUi->lstCerca);
        nuova->setToolTip(nuova->text().toHtmlEscaped()); // the list cuts long names off
        nuova->setData(ruoloCodice, soggetto.codice);
        nuova->setData(ruoloRagioneSociale, soggetto.ragioneSociale);
    }
}

QString frmRicerca::voce(const Soggetto& soggetto) const
{
    if (mCampoCercato == CampoSoggetto::localita)
        return soggetto.ragioneSociale.trimmed() + u" --- "_s + soggetto.localita.trimmed();
    if (mCampoCercato == CampoSoggetto::provincia)
        return soggetto.ragioneSociale.trimmed() + u" --- "_s + soggetto.provincia.trimmed();
    return soggetto.ragioneSociale;
}

void frmRicerca::scegli(const QListWidgetItem* voce)
{
    if (mInChiusura)
        return;
    // What follows is queued: the click must be over when the dialog goes, or the window below gets its
    // second half.
    const QString codice = voce->data(ruoloCodice).toString().trimmed();
    mIdRecord = codice.toInt(&mTrovato);
    if (!mTrovato) {
        QMetaObject::invokeMethod(
            this,
            [this, codice] {
                mostraErrore(Errore(
                    u"Il codice \"%1\" non è un numero: il soggetto non può essere scelto."_s.arg(codice)));
            },
            Qt::QueuedConnection);
        return;
    }
    mInChiusura = true;
    mRagioneSociale = voce->data(ruoloRagioneSociale).toString();
    QMetaObject::invokeMethod(this, &frmRicerca::chiudi, Qt::QueuedConnection);
}

void frmRicerca::chiudi()
{
    if (!isVisible() || !mInChiusura)
        return;
    ignoraSecondoClic();
    done(mTrovato ? Accepted : Rejected);
}

void frmRicerca::azzera()
{
    mTrovato = false;
    mIdRecord = 0;
    mRagioneSociale.clear();
}

void frmRicerca::mostraErrore(const Errore& errore)
{
    const auto* numerato = dynamic_cast<const ErroreNumerato*>(&errore);
    const std::optional<Messaggio> quotato = numerato ? messaggioSoggetti(numerato->numero()) : std::nullopt;
    // The dialog has no line of its own: the driver's words are with the list that stayed empty.
    if (!quotato)
        mUi->lstCerca->setToolTip(errore.testo());
    const QPointer<frmRicerca> io(this);
    mostraMessaggio(this, quotato ? *quotato : messaggioGuasto(errore));
    // The screen below may have gone, and the dialog with it.
    if (!io || !quotato)
        return;
    mUi->txtCerca->clear();
    mUi->txtCerca->setFocus();
}

void frmRicerca::showEvent(QShowEvent* evento)
{
    if (!evento->spontaneous()) {
        mInChiusura = false;
        mNonTrovata = false;
        azzera();
        mUi->lstCerca->clear();
        mUi->txtCerca->clear();
        mUi->optRagSoc->setChecked(true);
        mUi->optIniziale->setChecked(true);
        opzioneScelta();
        mUi->txtCerca->setFocus();
    }
    QDialog::showEvent(evento);
}

void frmRicerca::done(int esito)
{
    mInChiusura = true;
    if (esito != Accepted)
        azzera();
    mRicerca.chiudi();
    QDialog::done(esito);
}

} // namespace giacenza
