#include "screens/archivioschermata.h"

#include "data/archivio.h"
#include "database/recordset.h"

#include <QGuiApplication>
#include <QLabel>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

const QString attesa = u"Attendo l'archivio…"_s;

} // namespace

ArchivioSchermata::ArchivioSchermata(QWidget* schermata) : QObject(schermata), mSchermata(schermata) {}

ArchivioSchermata::~ArchivioSchermata()
{
    if (mInAttesa)
        QGuiApplication::restoreOverrideCursor();
}

Connessione& ArchivioSchermata::connessione()
{
    if (!mInOperazione)
        inizia();
    mConnessione.apri(accessoHost());
    return mConnessione;
}

void ArchivioSchermata::rilascia() noexcept
{
    ChiudiOggettiDB(nullptr, &mConnessione, Rilascio::si, Mantieni::no);
}

void ArchivioSchermata::inizia()
{
    mInOperazione = true;
    if (mRiga && mSchermata->isVisible()) {
        mInAttesa = true;
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        mPrima = mRiga->text();
        mRiga->setText(attesa);
        mRiga->repaint();
    }
    // Whatever runs the loop next ends the operation: the way back from the handler, a message, a dialog.
    QMetaObject::invokeMethod(this, &ArchivioSchermata::finisci, Qt::QueuedConnection);
    if (mConnessione.aperta() && !mConnessione.viva())
        mConnessione.chiudi();
}

void ArchivioSchermata::finisci()
{
    mInOperazione = false;
    if (!std::exchange(mInAttesa, false))
        return;
    QGuiApplication::restoreOverrideCursor();
    if (mRiga->text() == attesa)
        mRiga->setText(mPrima);
}

} // namespace giacenza
