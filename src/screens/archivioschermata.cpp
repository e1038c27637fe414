#include "screens/archivioschermata.h"

#include "base/impostazioni.h"
#include "data/archivio.h"
#include "database/recordset.h"

#include <QWidget>

#include <utility>

namespace giacenza {

ArchivioSchermata::ArchivioSchermata(QWidget* schermata) : QObject(schermata), mSchermata(schermata) {}

Connessione& ArchivioSchermata::connessione()
{
    attendi();
    // Asked each time: a file that has been taken away is told, and not written to unseen.
    const Accesso accesso = accessoHost();
    if (!mConnessione.aperta()) {
        mConnessione.apri(accesso);
        mStringa = accesso.stringa;
    }
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
    // What an operation opens besides goes to the archive that the host names now: all of it must be of one.
    const bool altrove = mStringa != impostazioni().percorsoDatabase;
    if (mConnessione.aperta() && (altrove || !mConnessione.viva()))
        mConnessione.chiudi();
}

void ArchivioSchermata::finisci()
{
    mInOperazione = false;
    mAttesa.reset();
}

} // namespace giacenza
