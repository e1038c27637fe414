#include "screens/consegna.h"

#include <QApplication>

namespace giacenza {

void Consegna::prova()
{
    // Under an open message or dialog it waits: whoever opened it goes on with what is on the screen.
    if (mSchermata.isVisible() && !QApplication::activeModalWidget() && std::exchange(mPendente, false))
        mEsegui();
}

} // namespace giacenza
