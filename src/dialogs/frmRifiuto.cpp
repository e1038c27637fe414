#include "dialogs/frmRifiuto.h"

#include "ui_frmRifiuto.h"

#include "base/messaggi.h"
#include "base/orologio.h"
#include "database/valori.h"
#include "widgets/limitetesto.h"

#include <QKeyEvent>
#include <QPointer>

using namespace Qt::StringLiterals;

namespace giacenza {

frmRifiuto::frmRifiuto(QWidget* parent) : QDialog(parent), mUi(std::make_unique<Ui::frmRifiuto>())
{
    mUi->setupUi(this);
    limitaCampi(this);
    connect(mUi->cmdOk, &QPushButton::clicked, this, &QDialog::accept);
    connect(mUi->cmdAnnulla, &QPushButton::clicked, this, &frmRifiuto::annulla);
}

frmRifiuto::~frmRifiuto() = default;

void frmRifiuto::showEvent(QShowEvent* evento)
{
    if (!evento->spontaneous()) {
        mAnnullo = false;
        mConfermato = false;
        mMotivazioneRifiuto.clear();
        mUi->txtDataRifiuto->imposta(dataBreve(oggi()));
        mUi->txtMotivazione->clear();
        mUi->txtDataRifiuto->setFocus();
    }
    QDialog::showEvent(evento);
}

void frmRifiuto::keyPressEvent(QKeyEvent* evento)
{
    if (evento->matches(QKeySequence::Cancel)) {
        annulla();
        return;
    }
    QDialog::keyPressEvent(evento);
}

void frmRifiuto::annulla()
{
    if (mInControllo)
        return;
    mAnnullo = true;
    mConfermato = false;
    reject();
}

void frmRifiuto::done([[maybe_unused]] int esito)
{
    // A second close while the message is up is the message's affair.
    if (mInControllo)
        return;
    mConfermato = false;
    if (mAnnullo) {
        QDialog::done(Rejected);
        return;
    }
    if (conferma())
        QDialog::done(Accepted);
}

bool frmRifiuto::conferma()
{
    const std::optional<QDate> giorno = leggiData(mUi->txtDataRifiuto->testo());
    if (!giorno) {
        rifiuta(u"Data rifiuto non corretta."_s, mUi->txtDataRifiuto);
        return false;
    }
    const QString motivazione = mUi->txtMotivazione->text();
    if (motivazione.isEmpty()) {
        rifiuta(u"Campo Motivazione Rifiuto non valorizzato."_s, mUi->txtMotivazione);
        return false;
    }
    mConfermato = true;
    mDataRifiuto = *giorno;
    mMotivazioneRifiuto = motivazione;
    return true;
}

void frmRifiuto::rifiuta(const QString& testo, QLineEdit* campo)
{
    const QPointer<frmRifiuto> io(this);
    mInControllo = true;
    mostraMessaggio(this, {testo, Stile::critico, titoloGestione()});
    if (!io)
        return;
    mInControllo = false;
    campo->setFocus();
    campo->selectAll();
}

} // namespace giacenza
