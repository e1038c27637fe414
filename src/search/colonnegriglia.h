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

    /// Lays the columns out for a list that was just read. Does nothing once it is done, or without columns.
    void disponi(ModoRicerca modo);

    /// Keeps what the operator changed, and starts anew.
    void ricorda();

private:
    QString chiave() const;
    void misura() const;

    QTableView* mGriglia;
    const ModelloRicerca* mModello;
    ModoRicerca mModo{};
    QByteArray mDisposte; // the header's state as laid out; empty before
};

} // namespace giacenza
