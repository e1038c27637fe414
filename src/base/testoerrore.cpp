#include "base/testoerrore.h"

#include "base/spiegazioni.h"

#include <exception>

using namespace Qt::StringLiterals;

namespace giacenza {

QString testoErrore()
{
    try {
        throw;
    } catch (const Errore& errore) {
        return spiega(errore);
    } catch (const std::exception& errore) {
        return QString::fromUtf8(errore.what());
    } catch (...) {
        return u"errore sconosciuto"_s;
    }
}

} // namespace giacenza
