#pragma once

#include "database/connessione.h"

#include <QObject>

class QLabel;
class QWidget;

namespace giacenza {

/// A screen's connection, for one operation after another. An operation is what the screen does from one turn
/// of the event loop to the next. At its start a connection that died meanwhile is replaced, without a word,
/// and the screen shows that it waits: by the pointer, and by a line that is painted at once, since nothing
/// else will be until the archive answers.
class ArchivioSchermata : public QObject
{
    Q_OBJECT

public:
    /// schermata: the screen, and this object's parent.
    explicit ArchivioSchermata(QWidget* schermata);
    ~ArchivioSchermata() override;

    /// The connection, opened when it is closed. Throws ErroreDatabase.
    Connessione& connessione();
    /// Closes and releases it; the next use opens it again.
    void rilascia() noexcept;

    /// Where the waiting is shown.
    void setRigaStato(QLabel* riga) { mRiga = riga; }

private:
    void inizia();
    void finisci();

    QWidget* mSchermata;
    QLabel* mRiga = nullptr;
    Connessione mConnessione;
    QString mPrima; ///< what the line said
    bool mInOperazione = false;
    bool mInAttesa = false; ///< the waiting is shown
};

} // namespace giacenza
