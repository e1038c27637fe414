#include "widgets/limitetesto.h"

#include <QLineEdit>

#include <algorithm>

namespace giacenza {

void limitaCampi(QWidget* finestra)
{
    // The field inside an editable list is one of them.
    for (QLineEdit* campo : finestra->findChildren<QLineEdit*>()) {
        if (campo->inputMask().isEmpty())
            campo->setMaxLength(std::min(campo->maxLength(), lunghezzaMassima));
    }
}

} // namespace giacenza
