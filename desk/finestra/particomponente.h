#pragma once

namespace giacenza::desk {

/// The desk has taken the code into itself that seeks outside parts: from now on it looks beside the
/// component's library too, where the component finds them.
void cercaPartiAccantoAlComponente();

} // namespace giacenza::desk
