#include "widgets/areaforma.h"

#include <QApplication>
#include <QBoxLayout>
#include <QEvent>
#include <QScrollBar>

namespace giacenza {

namespace {

constexpr int margineFuoco = 12;
/// Between the content and its scroll bar.
constexpr int distacco = 6;

} // namespace

AreaForma::AreaForma(QWidget* parent) : QScrollArea(parent)
{
    setWidgetResizable(true);
    setFrameShape(QFrame::NoFrame);
    // The arrow keys belong to the fields.
    setFocusPolicy(Qt::NoFocus);
    verticalScrollBar()->installEventFilter(this);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* ora) { segui(ora); });
}

void AreaForma::setColonne(QBoxLayout* colonne)
{
    mColonne = colonne;
    disponi();
}

int AreaForma::larghezzaAffiancate() const
{
    if (!widget() || !mColonne)
        return 0;
    int larghezza = 0;
    for (int i = 0; i < mColonne->count(); ++i)
        larghezza += mColonne->itemAt(i)->minimumSize().width() + (i ? mColonne->spacing() : 0);
    return larghezza;
}

QSize AreaForma::ingombro() const
{
    if (!widget())
        return QScrollArea::sizeHint();
    const QSize contenuto = widget()->minimumSizeHint();
    return {qMax(contenuto.width(), larghezzaAffiancate()), contenuto.height()};
}

void AreaForma::disponi()
{
    if (!mColonne)
        return;
    // Counted with the bar, whether it is there or not: the columns must not come and go with it.
    const int barra = verticalScrollBar()->sizeHint().width();
    const bool strette = width() - barra - distacco < larghezzaAffiancate();
    const auto verso = strette ? QBoxLayout::BottomToTop : QBoxLayout::LeftToRight;
    if (mColonne->direction() != verso)
        mColonne->setDirection(verso);
}

void AreaForma::resizeEvent(QResizeEvent* evento)
{
    disponi();
    QScrollArea::resizeEvent(evento);
}

bool AreaForma::eventFilter(QObject* oggetto, QEvent* evento)
{
    if (oggetto == widget() && evento->type() == QEvent::LayoutRequest)
        disponi();
    if (oggetto == verticalScrollBar() && (evento->type() == QEvent::Show || evento->type() == QEvent::Hide))
        setViewportMargins(0, 0, evento->type() == QEvent::Show ? distacco : 0, 0);
    return QScrollArea::eventFilter(oggetto, evento);
}

void AreaForma::segui(QWidget* conFuoco)
{
    // What is clicked must not slide away from under the pointer before the button is released.
    if (!conFuoco || !widget() || !widget()->isAncestorOf(conFuoco) ||
        QGuiApplication::mouseButtons() != Qt::NoButton)
        return;
    // Whole, and not only where its cursor stands; of one that is larger than the window, the beginning.
    const QSize posto = viewport()->size() - 2 * QSize(margineFuoco, margineFuoco);
    const QRect dove(conFuoco->mapTo(widget(), QPoint()), conFuoco->size().boundedTo(posto));
    ensureVisible(dove.center().x(), dove.center().y(), dove.width() / 2 + margineFuoco,
                  dove.height() / 2 + margineFuoco);
}

} // namespace giacenza
