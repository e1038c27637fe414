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
    /// The same search read anew: the row of a waybill stays the current one, and nothing is announced.
    void rimostra(EsitoRicerca esito);
    /// What was searched.
    QString cercato() const { return mEsito.cercato; }

    /// The case of the current row, once setCaso() has brought it; nothing for a waybill that is not held.
    std::optional<Caso> caso() const;
    /// A case that was read; kept while its row is the current one.
    void setCaso(const Caso& caso);

Q_SIGNALS:
    /// Enter on one: its case is to be shown, or the waybill registered.
    void scelta(const giacenza::desk::Trovata& trovata);
    /// A row with a case became the current one: setCaso() is waited for.
    void indicata(const giacenza::ChiaveGiacenza& chiave);

private:
    void riempi(EsitoRicerca esito);
    void indica(int riga);
    const Trovata* corrente() const;

    QLabel* mTitolo;
    TabellaDesk* mTabella;
    QLabel* mSuggerimento;
    QStandardItemModel* mModello;
    EsitoRicerca mEsito;
    std::optional<Caso> mCaso; ///< the last that was read
};

} // namespace giacenza::desk
