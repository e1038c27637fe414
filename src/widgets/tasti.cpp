#include "widgets/tasti.h"

#include <QKeySequence>
#include <QShortcut>
#include <QWidget>

namespace giacenza {

void suTasto(QWidget* campo, const QKeySequence& tasto, std::function<void()> azione)
{
    auto* scorciatoia = new QShortcut(tasto, campo);
    // An editable list gives the focus to its inner line: the children count as the field.
    scorciatoia->setContext(Qt::WidgetWithChildrenShortcut);
    QObject::connect(scorciatoia, &QShortcut::activated, campo, std::move(azione));
}

} // namespace giacenza
