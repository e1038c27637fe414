#pragma once

#include "desk/dati/ricerca.h"

#include <QWidget>

class QLabel;
class QStandardItemModel;

namespace giacenza::desk {

class TabellaDesk;

/// What a number led to, when it is more than one thing, or a waybill that is not held.
class PaginaRisultati : public QWidget
{
    Q_OBJECT

public:
    explicit PaginaRisultati(QWidget* padre = nullptr);

    void mostra(EsitoRicerca esito);

Q_SIGNALS:
    /// Enter on one: its case is to be shown, or the waybill registered.
    void scelta(const giacenza::desk::Trovata& trovata);

private:
    void suggerisci(int riga);

    QLabel* mTitolo;
    TabellaDesk* mTabella;
    QLabel* mSuggerimento;
    QStandardItemModel* mModello;
    EsitoRicerca mEsito;
};

} // namespace giacenza::desk
