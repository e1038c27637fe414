#include "widgets/areaforma.h"

#include <QApplication>
#include <QBoxLayout>
#include <QEvent>
#include <QScrollBar>

#include <utility>

namespace giacenza {

namespace {

constexpr int margineFuoco = 12;
/// Between the content and its scroll bar.
constexpr int distacco = 6;

/// What the parts of a layout need side by side, whichever way they lie now.
int larghezzaInFila(const QBoxLayout& parti)
{
    int larghezza = 0;
    for (int i = 0; i < parti.count(); ++i)
        larghezza += parti.itemAt(i)->minimumSize().width() + (i ? parti.spacing() : 0);
    return larghezza;
}

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

void AreaForma::setRigheDivisibili(const QList<QBoxLayout*>& righe)
{
    mRighe = {righe.begin(), righe.end()};
    disponi();
}

int AreaForma::larghezzaAffiancate() const
{
    return widget() && mColonne ? larghezzaInFila(*mColonne) : 0;
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
    const int spazio = width() - verticalScrollBar()->sizeHint().width() - distacco;
    const bool strette = spazio < larghezzaAffiancate();
    const auto verso = strette ? QBoxLayout::BottomToTop : QBoxLayout::LeftToRight;
    if (mColonne->direction() != verso)
        mColonne->setDirection(verso);
    for (QBoxLayout* riga : std::as_const(mRighe))
        if (riga)
            disponiRiga(*riga, spazio);
}

void AreaForma::disponiRiga(QBoxLayout& riga, int spazio)
{
    if (riga.geometry().isEmpty())
        return; // not laid out yet
    // What lies beside the row in the form takes its part.
    const int intorno = widget()->width() - riga.geometry().width();
    const bool stretta = spazio < larghezzaInFila(riga) + intorno;
    const auto verso = stretta ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight;
    if (riga.direction() != verso)
        riga.setDirection(verso);
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
