#pragma once

#include "database/connessione.h"
#include "widgets/attesa.h"

#include <QObject>

#include <optional>

class QWidget;

namespace giacenza {

/// A screen's connection, for one operation after another. An operation is what the screen does from one turn
/// of the event loop to the next. At its start a connection that died meanwhile, or that is not the one the
/// host names any more, is replaced, without a word, and the screen shows that it waits: by the pointer, and
/// by its line (Attesa).
class ArchivioSchermata : public QObject
{
    Q_OBJECT

public:
    /// schermata: the screen, and this object's parent.
    explicit ArchivioSchermata(QWidget* schermata);

    /// Begins an operation, if none is going on: for a wait that is not on this connection.
    void attendi();

    /// The connection, opened when it is closed. Throws ErroreDatabase.
    Connessione& connessione();
    /// Closes and releases it; the next use opens it again.
    void rilascia() noexcept;

    /// Where the waiting is shown.
    void setRigaStato(QLabel* riga) { mRiga = riga; }

private:
    void finisci();

    QWidget* mSchermata;
    QLabel* mRiga = nullptr;
    Connessione mConnessione;
    QString mStringa; ///< that it was opened with
    std::optional<Attesa> mAttesa;
    bool mInOperazione = false;
};

} // namespace giacenza
