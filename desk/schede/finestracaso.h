#pragma once

#include "desk/schede/schedacaso.h"

#include <QDialog>

namespace giacenza::schede {

/// What happened to a case, in a window of its own.
///
///     FinestraCaso finestra(accesso, caso, cartaDelleLettere(logo), this);
///     finestra.exec();
class FinestraCaso : public QDialog
{
    Q_OBJECT

public:
    FinestraCaso(const Accesso& accesso, const ChiaveGiacenza& caso, const documenti::Carta& carta,
                 QWidget* padre = nullptr);

    SchedaCaso& scheda() { return *mScheda; }

private:
    SchedaCaso* mScheda;
};

} // namespace giacenza::schede
