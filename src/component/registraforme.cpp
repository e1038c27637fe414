#include "component/registraforme.h"

#include "component/forme.h"

namespace giacenza {

void registraForme([[maybe_unused]] Forme& forme) {}

} // namespace giacenza
