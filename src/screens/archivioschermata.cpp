#include "screens/archivioschermata.h"

#include "data/archivio.h"
#include "database/recordset.h"

#include <QWidget>

#include <utility>

namespace giacenza {

ArchivioSchermata::ArchivioSchermata(QWidget* schermata) : QObject(schermata), mSchermata(schermata) {}

Connessione& ArchivioSchermata::connessione()
{
    attendi();
    mConnessione.apri(accessoHost());
    return mConnessione;
}

void ArchivioSchermata::rilascia() noexcept
{
    ChiudiOggettiDB(nullptr, &mConnessione, Rilascio::si, Mantieni::no);
}

void ArchivioSchermata::attendi()
{
    if (std::exchange(mInOperazione, true))
        return;
    if (mRiga && mSchermata->isVisible())
        mAttesa.emplace(mRiga);
    // Whatever runs the loop next ends the operation: the way back from the handler, a message, a dialog.
    QMetaObject::invokeMethod(this, &ArchivioSchermata::finisci, Qt::QueuedConnection);
    if (mConnessione.aperta() && !mConnessione.viva())
        mConnessione.chiudi();
}

void ArchivioSchermata::finisci()
{
    mInOperazione = false;
    mAttesa.reset();
}

} // namespace giacenza
