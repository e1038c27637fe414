#include "base/impostazioni.h"

namespace giacenza {

Impostazioni& impostazioni()
{
    static thread_local Impostazioni delThread;
    return delThread;
}

} // namespace giacenza
