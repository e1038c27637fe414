#include "desk/finestra/particomponente.h"

#include "base/parti.h"

#include <giacenza/Caso.h>

#include <QFile>
#include <QFileInfo>

#include <dlfcn.h>

using namespace Qt::StringLiterals;

namespace giacenza::desk {

void cercaPartiAccantoAlComponente()
{
    Dl_info dove{};
    if (dladdr(reinterpret_cast<const void*>(&MostraCaso), &dove) == 0 || dove.dli_fname == nullptr)
        return;
    const QString cartella = QFileInfo(QFile::decodeName(dove.dli_fname)).absolutePath() + u"/giacenza"_s;
    if (!cartelleParti().contains(cartella))
        aggiungiCartellaParti(cartella);
}

} // namespace giacenza::desk
