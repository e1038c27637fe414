#pragma once

#include "desk/avvisi/emittentecaso.h"

#include <QDialog>

#include <vector>

class QLabel;
class QProgressBar;
class QPushButton;
class QStandardItemModel;

namespace giacenza::desk {

class TabellaDesk;

/// Notices, or reprints, of one or more cases: first what is going to be done, how many and to whom, then how
/// far it is, and in the end what came of each.
class FinestraInvio : public QDialog
{
    Q_OBJECT

public:
    FinestraInvio(Lavoro lavoro, std::vector<Caso> casi, const Accesso& accesso, QWidget* padre = nullptr);

    /// Whether anything was begun.
    bool cominciato() const { return mCominciato; }

public Q_SLOTS:
    /// Esc and the close box stop what is going on, and then close.
    void reject() override;

private:
    void componi();
    void anteprima();
    void avvia();
    void prossimo();
    void finito();
    void scriviEsito(std::size_t quale, const QString& parole, Esito esito);
    void diciRiga();
    QString riepilogo() const;

    Lavoro mLavoro;
    std::vector<Caso> mCasi;
    std::vector<bool> mFuori; ///< left out from the start
    EmittenteCaso mEmittente;
    std::size_t mProssimo = 0;
    bool mCominciato = false;
    bool mInCorso = false;
    bool mInterrotto = false;
    bool mSenzaArchivio = false; ///< the last case found the archive silent
    int mPrimoGuasto = -1;       ///< the first row that was refused, not printed or of which nobody knows
    int mConti[5] = {};          ///< by Esito
    QLabel* mTesto;
    TabellaDesk* mTabella;
    QStandardItemModel* mModello;
    QLabel* mRiga;
    QProgressBar* mBarra;
    QPushButton* mEmetti;
    QPushButton* mChiudi;
};

} // namespace giacenza::desk
