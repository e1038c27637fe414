#include "widgets/secondoclic.h"

#include <QApplication>
#include <QCursor>
#include <QMouseEvent>
#include <QTimer>

namespace giacenza {

namespace {

/// Lives for the time in which two clicks are a double click.
class SecondoClic : public QObject
{
public:
    SecondoClic() : QObject(qApp), mDove(QCursor::pos())
    {
        qApp->installEventFilter(this);
        QTimer::singleShot(QApplication::doubleClickInterval(), this, &QObject::deleteLater);
    }

    bool eventFilter(QObject*, QEvent* evento) override
    {
        if (evento->type() != QEvent::MouseButtonPress && evento->type() != QEvent::MouseButtonDblClick)
            return false;
        const QPoint dove = static_cast<QMouseEvent*>(evento)->globalPosition().toPoint();
        return (dove - mDove).manhattanLength() < QApplication::startDragDistance();
    }

private:
    QPoint mDove;
};

} // namespace

void ignoraSecondoClic()
{
    new SecondoClic;
}

} // namespace giacenza
