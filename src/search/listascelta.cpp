#include "search/listascelta.h"

#include <QKeyEvent>
#include <QScrollBar>

namespace giacenza {

ListaScelta::ListaScelta(QWidget* parent) : QListWidget(parent)
{
    setUniformItemSizes(true);
    setVerticalScrollMode(ScrollPerItem);
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, &ListaScelta::guardaFine);
    connect(this, &QListWidget::currentRowChanged, this, &ListaScelta::guardaFine);
    connect(this, &QListWidget::itemClicked, this, &ListaScelta::scelta);
}

int ListaScelta::righeVisibili() const
{
    const int altezza = count() > 0 ? sizeHintForRow(0) : fontMetrics().height();
    return qMax(1, viewport()->height() / qMax(1, altezza));
}

void ListaScelta::entraDaTasto()
{
    if (!isEnabled() || count() == 0)
        return;
    setFocus(Qt::ShortcutFocusReason);
    if (selectedItems().isEmpty())
        setCurrentRow(qMax(0, currentRow()));
}

void ListaScelta::keyPressEvent(QKeyEvent* evento)
{
    const bool nienteSegnato = selectedItems().isEmpty();
    switch (evento->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        // Kept from the dialog, whose default button would search again.
        evento->accept();
        if (!nienteSegnato)
            Q_EMIT scelta(selectedItems().first());
        return;
    case Qt::Key_Down:
    case Qt::Key_Up:
        if (nienteSegnato && count() > 0) {
            setCurrentRow(qMax(0, currentRow()));
            return;
        }
        break;
    default:
        break;
    }
    QListWidget::keyPressEvent(evento);
}

void ListaScelta::resizeEvent(QResizeEvent* evento)
{
    QListWidget::resizeEvent(evento);
    guardaFine();
}

void ListaScelta::guardaFine()
{
    const int ultimaVisibile = verticalScrollBar()->value() + righeVisibili();
    if (qMax(ultimaVisibile, currentRow()) >= count() - 1)
        Q_EMIT finePagina();
}

} // namespace giacenza
