#include "comune/avanzamento.h"

#include <QPushButton>

using namespace Qt::StringLiterals;

namespace giacenza::comune {

Avanzamento::Avanzamento(QWidget* padre, const QString& titolo, int pagine)
{
    if (pagine < 2)
        return;
    constexpr int millisecondiPrimaDiMostrarsi = 1000;
    mFinestra = new QProgressDialog(padre);
    mFinestra->setObjectName(u"dlgAvanzamento"_s);
    mFinestra->setWindowTitle(titolo);
    mFinestra->setLabelText(u"Stampa di %1 pagine…"_s.arg(pagine));
    auto* annulla = new QPushButton(u"Annulla"_s, mFinestra);
    annulla->setObjectName(u"cmdAnnulla"_s);
    mFinestra->setCancelButton(annulla);
    mFinestra->setRange(0, pagine);
    mFinestra->setAutoClose(false);
    mFinestra->setAutoReset(false);
    mFinestra->setMinimumDuration(millisecondiPrimaDiMostrarsi);
    // Esc may only close the window: that gives the print up too.
    QObject::connect(mFinestra, &QDialog::rejected, mFinestra, &QProgressDialog::cancel);
    // While it lets events through, no other window of the host may start another print.
    mFinestra->setWindowModality(Qt::ApplicationModal);
}

Avanzamento::~Avanzamento()
{
    delete mFinestra;
}

bool Avanzamento::prosegue(int fatte)
{
    if (mFinestra)
        mFinestra->setValue(fatte);
    return !mFinestra || !mFinestra->wasCanceled();
}

} // namespace giacenza::comune
