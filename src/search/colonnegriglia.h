#pragma once

#include "data/istruzioniricerca.h"

#include <QByteArray>

class QTableView;

namespace giacenza {

class ModelloRicerca;

/// Which columns a grid shows, in which order and how wide: sized to what is in them until the operator has
/// changed them, then as he left them, for each mode, in the settings of the application.
class ColonneGriglia
{
public:
    /// Both must outlive this object.
    ColonneGriglia(QTableView* griglia, const ModelloRicerca* modello);

    /// Lays the columns out for a list that was just read. Does nothing without columns, nor once it is done
    /// for rows; after an empty list the first rows are measured, unless the operator has changed a column.
    void disponi(ModoRicerca modo);

    /// Keeps what the operator changed, and starts anew.
    void ricorda();

private:
    QString chiave() const;
    void misura() const;

    QTableView* mGriglia;
    const ModelloRicerca* mModello;
    ModoRicerca mModo{};
    QByteArray mDisposte;     // the header's state as laid out; empty before
    bool mDaMisurare = false; // laid out by the captions alone
};

} // namespace giacenza
