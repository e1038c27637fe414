#include "component/testoerrore.h"

#include <exception>

namespace giacenza {

QString testoErrore()
{
    try {
        throw;
    } catch (const std::exception& errore) {
        return QString::fromUtf8(errore.what());
    } catch (...) {
        return QStringLiteral("errore sconosciuto");
    }
}

} // namespace giacenza
