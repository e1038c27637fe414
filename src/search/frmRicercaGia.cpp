#include "search/frmRicercaGia.h"

#include "ui_frmRicercaGia.h"

#include "base/forme.h"
#include "base/messaggi.h"
#include "base/orologio.h"
#include "base/spiegazioni.h"
#include "data/archivio.h"
#include "search/colonnegriglia.h"
#include "search/modelloricerca.h"
#include "widgets/attesa.h"
#include "widgets/limitetesto.h"

#include <QKeyEvent>
#include <QLocale>
#include <QRegularExpressionValidator>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

bool esiste(ModoRicerca modo)
{
    switch (modo) {
    case ModoRicerca::riferimento:
    case ModoRicerca::letteraVettura:
    case ModoRicerca::riconsegne:
    case ModoRicerca::giacenze:
        return true;
    }
    return false;
}

/// What to say when there is nothing to start the list from.
QString mancaValore(ModoRicerca modo)
{
    return modo == ModoRicerca::letteraVettura ? u"Indicare il numero di lettera di vettura."_s
                                               : u"Indicare un riferimento Cliente."_s;
}

} // namespace

frmRicercaGia::frmRicercaGia(QWidget* padre)
    : QDialog(padre), mUi(std::make_unique<Ui::frmRicercaGia>()), mModello(new ModelloRicerca(this))
{
    mUi->setupUi(this);
    limitaCampi(this);
    mModello->setObjectName(u"adoTariffe"_s);
    mUi->Griglia->setModel(mModello);
    mUi->Griglia->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    mColonne = std::make_unique<ColonneGriglia>(mUi->Griglia, mModello);
    collega();
}

frmRicercaGia::~frmRicercaGia() = default;

void frmRicercaGia::collega()
{
    connect(mUi->cmdVisualizza, &QPushButton::clicked, this, &frmRicercaGia::visualizza);
    connect(mUi->cmdSeleziona, &QPushButton::clicked, this, &frmRicercaGia::seleziona);
    connect(mUi->Griglia, &QTableView::doubleClicked, this, [this] {
        if (postiScelta(mModo))
            seleziona();
    });
    connect(mModello, &ModelloRicerca::continuata, this, &frmRicercaGia::contaRighe);
    connect(mModello, &ModelloRicerca::interrotta, this, &frmRicercaGia::interrotta);
}

void frmRicercaGia::showEvent(QShowEvent* evento)
{
    QDialog::showEvent(evento);
    if (evento->spontaneous())
        return;
    Forme::delThread()->annota(u"frmRicercaGia"_s, this);
    prepara();
    elenca([this] { return istruzioni::ricercaApertura(mModo, mDati); });
    // A box needs the dialog on screen.
    QMetaObject::invokeMethod(this, &frmRicercaGia::avvisaSeVuoto, Qt::QueuedConnection);
}

void frmRicercaGia::hideEvent(QHideEvent* evento)
{
    QDialog::hideEvent(evento);
    if (evento->spontaneous())
        return;
    mColonne->ricorda();
    mModello->chiudi();
}

void frmRicercaGia::prepara()
{
    mAccettato = false;
    mDati.annoCorrente = oggi().year();
    mModello->svuota();
    setWindowTitle(mTitolo);
    mUi->lblRif->setText(mCaptionLabel);
    mUi->lblCliente->setText(mRagioneSociale);
    preparaCampi();
    const bool soloElenco = !postiScelta(mModo);
    mUi->cmdSeleziona->setText(soloElenco ? u"&Esci"_s : u"&Seleziona"_s);
}

void frmRicercaGia::preparaCampi()
{
    const bool soloElenco = mModo == ModoRicerca::riconsegne;
    const bool perData = mModo == ModoRicerca::giacenze;
    const bool perRiferimento = mModo == ModoRicerca::riferimento;
    for (QWidget* campo : std::initializer_list<QWidget*>{mUi->lblRif, mUi->txtValore, mUi->lblAnno,
                                                          mUi->txtAnnoData, mUi->cmdVisualizza})
        campo->setVisible(!soloElenco);
    mUi->txtValore->setText(perRiferimento ? mDati.riferimento : perData ? QString() : mDati.numero);
    // Held shipments are listed by date alone, and the year narrows references at opening only.
    mUi->txtValore->setEnabled(!perData);
    mUi->txtAnnoData->setEnabled(!perRiferimento);

    static const QRegularExpressionValidator soloAnno{QRegularExpression(u"[0-9]{0,4}"_s)};
    mUi->lblAnno->setText(perData ? u"Data :"_s : u"Anno :"_s);
    mUi->txtAnnoData->chiediData(perData);
    mUi->txtAnnoData->setValidator(perData ? nullptr : &soloAnno);
    const auto giorno = perData ? leggiData(mDati.annoOData) : std::nullopt;
    if (giorno)
        mUi->txtAnnoData->imposta(dataBreve(*giorno));
    else if (!perData && eNumero(mDati.annoOData))
        mUi->txtAnnoData->imposta(mDati.annoOData.trimmed());
}

void frmRicercaGia::visualizza()
{
    DatiRicerca dati = mDati;
    dati.valore = mUi->txtValore->text();
    dati.annoOData = mUi->txtAnnoData->testo();
    if (mModo == ModoRicerca::giacenze) {
        if (!eData(dati.annoOData)) {
            mUi->txtAnnoData->setFocus();
            mostraMessaggio(this, {u"Inserire una data valida."_s, Stile::avviso, titoloApplicazione()});
            return;
        }
    } else if (dati.valore.trimmed().isEmpty()) {
        mUi->txtValore->setFocus();
        mostraMessaggio(this, {mancaValore(mModo), Stile::informazione, titoloApplicazione()});
        return;
    }
    if (mModo == ModoRicerca::letteraVettura)
        dati.valore = dati.valore.trimmed(); // a number: blanks around it mean nothing
    else if (mModo == ModoRicerca::riferimento)
        mUi->txtAnnoData->imposta({}); // the list is no longer narrowed to it
    elenca([&] { return istruzioni::ricercaVisualizza(mModo, dati); });
    avvisaSeVuoto();
}

void frmRicercaGia::elenca(const std::function<QString()>& istruzione)
{
    const Attesa attesa(mUi->lblRighe);
    mGuasto.clear();
    mParole.clear();
    try {
        if (!esiste(mModo))
            throw Errore(u"Il tipo di ricerca %1 non esiste."_s.arg(TipoRicerca()));
        mModello->apri(accessoHost(), istruzione(), inOrdine(mModo) ? postiScelta(mModo) : std::nullopt);
    } catch (const Errore& errore) {
        mModello->svuota(false);
        mGuasto = spiega(errore);
        mParole = errore.testo();
    }
    mColonne->disponi(mModo);
    const bool righe = mModello->rowCount() > 0;
    if (righe) {
        // The first column may be hidden, and a hidden one cannot be current for the keyboard.
        mUi->Griglia->setCurrentIndex(
            mModello->index(0, mUi->Griglia->horizontalHeader()->logicalIndexAt(0)));
        mUi->Griglia->setFocus();
    } else if (!postiScelta(mModo)) {
        mUi->cmdSeleziona->setFocus();
    } else if (mModo == ModoRicerca::giacenze) {
        mUi->txtAnnoData->setFocus();
    } else {
        mUi->txtValore->setFocus();
    }
    mUi->cmdSeleziona->setEnabled(righe || !postiScelta(mModo));
    contaRighe();
}

void frmRicercaGia::avvisaSeVuoto()
{
    if (isVisible() && mModello->rowCount() == 0)
        mostraMessaggio(this, {u"Non ci sono spedizioni per il cliente selezionato."_s, Stile::informazione,
                               titoloApplicazione()});
}

void frmRicercaGia::interrotta(const QString& motivo, const QString& parole)
{
    mGuasto = motivo;
    mParole = parole;
    contaRighe();
    // The grid is in the midst of asking for rows.
    QMetaObject::invokeMethod(
        this,
        [this, motivo] {
            if (isVisible())
                mostraMessaggio(
                    this,
                    {u"La lettura dell'elenco si è interrotta: restano le righe già lette.\n\n"_s + motivo,
                     Stile::critico, titoloApplicazione()});
        },
        Qt::QueuedConnection);
}

void frmRicercaGia::contaRighe()
{
    const int righe = mModello->rowCount();
    const QString quante = QLocale(QLocale::Italian, QLocale::Italy).toString(righe);
    QString testo;
    if (righe == 0)
        testo = mGuasto.isEmpty() ? u"Nessuna riga"_s : u"Ricerca non riuscita: "_s + mGuasto;
    else if (!mGuasto.isEmpty())
        testo = u"%1 righe lette, lettura interrotta: "_s.arg(quante) + mGuasto;
    else if (!mModello->completo())
        testo = u"%1 righe lette, continua…"_s.arg(quante);
    else
        testo = righe == 1 ? u"1 riga"_s : u"%1 righe"_s.arg(quante);
    mUi->lblRighe->setText(testo.simplified());
    mUi->lblRighe->setToolTip(mParole);
}

QString frmRicercaGia::cella(int colonna) const
{
    return mModello->index(mUi->Griglia->currentIndex().row(), colonna).data().toString();
}

void frmRicercaGia::seleziona()
{
    const auto posti = postiScelta(mModo);
    if (!posti) {
        reject();
        return;
    }
    if (!mUi->Griglia->currentIndex().isValid())
        return;
    mDati.numero = cella(posti->numero).trimmed();
    const QString giorno = cella(posti->data);
    mDataLetVett = posti->dataSenzaSpazi ? giorno.trimmed() : giorno;
    mAccettato = true;
    accept();
}

void frmRicercaGia::keyPressEvent(QKeyEvent* evento)
{
    if (evento->key() != Qt::Key_Return && evento->key() != Qt::Key_Enter) {
        QDialog::keyPressEvent(evento);
        return;
    }
    // The key that opened the dialog may still be held down.
    if (evento->isAutoRepeat())
        return;
    const QWidget* campo = focusWidget();
    const bool scrive = campo == mUi->txtValore || campo == mUi->txtAnnoData || campo == mUi->cmdVisualizza;
    (scrive ? mUi->cmdVisualizza : mUi->cmdSeleziona)->click();
}

} // namespace giacenza
