#pragma once

namespace giacenza {

/// To be called where a single click closes a window: a second click at the same place, which makes it a
/// double click, is swallowed, so that it does not press what lay under the window.
void ignoraSecondoClic();

} // namespace giacenza
