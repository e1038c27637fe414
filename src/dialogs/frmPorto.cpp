#include "dialogs/frmPorto.h"

#include "ui_frmPorto.h"

#include "base/impostazioni.h"
#include "base/spiegazioni.h"
#include "data/archivio.h"
#include "dialogs/porto.h"
#include "widgets/attesa.h"

#include <QKeyEvent>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

/// Where the freight terms of a return stand in the list: third, whatever they are called.
constexpr int rigaReso = 2;

} // namespace

frmPorto::frmPorto(QWidget* parent) : QDialog(parent), mUi(std::make_unique<Ui::frmPorto>())
{
    mUi->setupUi(this);
    connect(mUi->cmbPorto, &ElencoPorto::inApertura, this, &frmPorto::caricaElenco);
    connect(mUi->cmdEsci, &QPushButton::clicked, this, &QDialog::accept);
    connect(mUi->cmdAnnulla, &QPushButton::clicked, this, &frmPorto::annulla);
}

frmPorto::~frmPorto() = default;

void frmPorto::caricaElenco()
{
    const Attesa attesa;
    try {
        // The dialog may have been open for long.
        if (!mConnessione.viva())
            mConnessione.chiudi();
        mConnessione.apri(accessoHost());
        CaricaPorto(mUi->cmbPorto, mConnessione);
        stato({});
    } catch (const Errore& errore) {
        // The issue may go on without freight terms, so this is told and stops nothing.
        mUi->cmbPorto->setCurrentIndex(-1);
        stato(u"I termini di porto non si leggono: %1"_s.arg(spiega(errore)), errore.testo());
    }
}

void frmPorto::stato(const QString& testo, const QString& parole)
{
    mUi->lblStato->setToolTip(parole);
    mUi->lblStato->setText(testo);
    mUi->lblStato->setVisible(!testo.isEmpty());
}

void frmPorto::showEvent(QShowEvent* evento)
{
    if (!evento->spontaneous()) {
        mAnnullato = false;
        mUi->optGiacenza->setChecked(true);
        mUi->optStampaLDV->setChecked(true);
        mUi->cmbPorto->setFocus();
        caricaElenco();
        const bool reso = impostazioni().movimento == Movimento::reso;
        if (reso && mUi->cmbPorto->count() > rigaReso)
            mUi->cmbPorto->setCurrentIndex(rigaReso);
        else if (mUi->cmbPorto->count() > 0)
            mUi->cmbPorto->setCurrentIndex(0);
    }
    QDialog::showEvent(evento);
}

void frmPorto::keyPressEvent(QKeyEvent* evento)
{
    if (evento->matches(QKeySequence::Cancel)) {
        annulla();
        return;
    }
    QDialog::keyPressEvent(evento);
}

void frmPorto::annulla()
{
    mAnnullato = true;
    reject();
}

void frmPorto::done([[maybe_unused]] int esito)
{
    if (mUi->cmbPorto->currentIndex() >= 0)
        mPorto = mUi->cmbPorto->currentData().toString().toInt(); // the variant's own cuts large numbers off
    mControlloGiacenza = mUi->optGiacenza->isChecked();
    mStampaLDV = mUi->optStampaLDV->isChecked();
    mConnessione.chiudi();
    QDialog::done(mAnnullato ? Rejected : Accepted);
}

} // namespace giacenza
