#include "desk/finestra/tabelladesk.h"

#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>

namespace giacenza::desk {

TabellaDesk::TabellaDesk(const QString& nome, QWidget* padre) : QTableView(padre)
{
    setAccessibleName(nome);
    setSelectionBehavior(SelectRows);
    setEditTriggers(NoEditTriggers);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setSectionsMovable(true);
    connect(this, &QTableView::doubleClicked, this,
            [this](const QModelIndex& indice) { Q_EMIT presa(indice.row()); });
}

void TabellaDesk::setMisure(const QStringList& testi)
{
    mMisure = testi;
    ensurePolished();
    larghezzeSolite();
}

int TabellaDesk::solita(int colonna) const
{
    constexpr int intorno = 18;
    return fontMetrics().horizontalAdvance(mMisure.at(colonna)) + intorno;
}

void TabellaDesk::larghezzeSolite()
{
    constexpr int sopraESotto = 8;
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + sopraESotto);
    mCarattere = fontMetrics().averageCharWidth();
    mSolite.clear();
    for (int i = 0; i < mMisure.size() && model(); ++i) {
        mSolite << solita(i);
        setColumnWidth(i, mSolite.last());
    }
}

/// What the user chose grows with the font; the rest is measured anew.
void TabellaDesk::nuovoCarattere()
{
    const QList<int> prima = mSolite;
    const int carattere = mCarattere;
    QList<int> scelte;
    for (int i = 0; i < prima.size(); ++i)
        scelte << columnWidth(i);
    larghezzeSolite();
    for (int i = 0; i < prima.size(); ++i)
        if (!isColumnHidden(i) && scelte[i] != prima[i])
            setColumnWidth(i, scelte[i] * mCarattere / carattere);
}

int TabellaDesk::primaVista() const
{
    const QHeaderView* testata = horizontalHeader();
    for (int posto = 0; posto < testata->count(); ++posto)
        if (!testata->isSectionHidden(testata->logicalIndex(posto)))
            return testata->logicalIndex(posto);
    return 0;
}

void TabellaDesk::keyPressEvent(QKeyEvent* evento)
{
    const bool invio = evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter;
    if (invio && !(evento->modifiers() & (Qt::ControlModifier | Qt::AltModifier)) &&
        currentIndex().isValid()) {
        Q_EMIT presa(currentIndex().row());
        return;
    }
    QTableView::keyPressEvent(evento);
}

void TabellaDesk::changeEvent(QEvent* evento)
{
    QTableView::changeEvent(evento);
    if (evento->type() == QEvent::FontChange)
        nuovoCarattere();
}

} // namespace giacenza::desk
