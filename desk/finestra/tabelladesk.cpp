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
    misura();
}

void TabellaDesk::misura()
{
    constexpr int intorno = 18;
    constexpr int sopraESotto = 8;
    ensurePolished();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + sopraESotto);
    for (int i = 0; i < mMisure.size() && model(); ++i)
        setColumnWidth(i, fontMetrics().horizontalAdvance(mMisure.at(i)) + intorno);
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
        misura();
}

} // namespace giacenza::desk
