#pragma once

#include <functional>

class QWidget;

namespace giacenza {

/// Runs an action when a key is pressed, without modifiers, in a field that has the focus.
/// tasto: a Qt::Key value.
void suTasto(QWidget* campo, int tasto, std::function<void()> azione);

} // namespace giacenza
