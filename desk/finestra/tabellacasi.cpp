#include "desk/finestra/tabellacasi.h"

#include "desk/finestra/colonnecasi.h"
#include "desk/finestra/colonnescelte.h"
#include "desk/finestra/modellocasi.h"

#include <QHeaderView>
#include <QScrollBar>

using namespace Qt::StringLiterals;

namespace giacenza::desk {

TabellaCasi::TabellaCasi(ModelloCasi* modello, QWidget* padre)
    : TabellaDesk(u"Giacenze aperte"_s, padre), mModello(modello)
{
    setObjectName(u"tabCasi"_s);
    setSelectionMode(ExtendedSelection);
    // Before the view hears of it, and after.
    connect(modello, &QAbstractItemModel::modelAboutToBeReset, this, &TabellaCasi::ricorda);
    setModel(modello);
    connect(modello, &QAbstractItemModel::modelReset, this, &TabellaCasi::rimetti);
    horizontalHeader()->setSortIndicator(colonnaFranchi, Qt::AscendingOrder);
    setSortingEnabled(true);
    QStringList misure;
    for (const ColonnaCasi& colonna : colonneCasi())
        misure << (colonna.misura.size() > colonna.titolo.size() ? colonna.misura : colonna.titolo + u"m"_s);
    setMisure(misure);
    mColonneScelte = new ColonneScelte(this);
}

QList<int> TabellaCasi::marcate() const
{
    QList<int> righe;
    for (const QItemSelectionRange& tratto : selectionModel()->selection())
        for (int riga = tratto.top(); riga <= tratto.bottom(); ++riga)
            righe << riga;
    if (righe.isEmpty() && currentIndex().isValid())
        righe << currentIndex().row();
    std::sort(righe.begin(), righe.end());
    return righe;
}

void TabellaCasi::mostraRiga(int riga)
{
    setCurrentIndex(mModello->index(riga, primaVista()));
    scrollTo(currentIndex());
}

void TabellaCasi::ricorda()
{
    const auto nome = [this](int riga) { return nomeGiacenza(mModello->riga(riga).caso.chiave); };
    mMarcate.clear();
    for (const QItemSelectionRange& tratto : selectionModel()->selection())
        for (int riga = tratto.top(); riga <= tratto.bottom(); ++riga)
            mMarcate.insert(nome(riga));
    mCorrente = currentIndex().isValid() ? nome(currentIndex().row()) : mCorrente;
    mColonna = currentIndex().isValid() ? currentIndex().column() : 0;
    const int prima = rowAt(0);
    mPrima = prima > 0 ? nome(prima) : QString();
    mScorsa = horizontalScrollBar()->value();
}

void TabellaCasi::rimetti()
{
    if (mMarcate.isEmpty() && mCorrente.isEmpty() && mPrima.isEmpty())
        scrollToTop();
    else
        rimettiRighe();
    executeDelayedItemsLayout(); // until then the bar does not know how far it goes
    horizontalScrollBar()->setValue(mScorsa);
}

void TabellaCasi::rimettiRighe()
{
    QItemSelection scelte;
    int corrente = -1;
    int prima = -1;
    int primaMarcata = -1;
    // A range for each stretch of rows: what the view does for each range it does for all the others.
    const auto chiudiTratto = [&](int dopo) {
        if (primaMarcata >= 0)
            scelte.append(QItemSelectionRange(mModello->index(primaMarcata, 0),
                                              mModello->index(dopo - 1, mModello->columnCount() - 1)));
        primaMarcata = -1;
    };
    for (int riga = 0; riga < mModello->rowCount(); ++riga) {
        const QString nome = nomeGiacenza(mModello->riga(riga).caso.chiave);
        if (!mMarcate.contains(nome))
            chiudiTratto(riga);
        else if (primaMarcata < 0)
            primaMarcata = riga;
        if (nome == mCorrente)
            corrente = riga;
        if (nome == mPrima)
            prima = riga;
    }
    chiudiTratto(mModello->rowCount());
    if (corrente >= 0)
        selectionModel()->setCurrentIndex(mModello->index(corrente, mColonna), QItemSelectionModel::NoUpdate);
    selectionModel()->select(scelte, QItemSelectionModel::ClearAndSelect);
    if (prima > 0)
        scrollTo(mModello->index(prima, primaVista()), PositionAtTop); // nothing scrolls to a hidden one
    else
        scrollToTop();
}

} // namespace giacenza::desk
