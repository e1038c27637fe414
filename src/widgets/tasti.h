#pragma once

#include <QKeySequence>

#include <functional>

class QWidget;

namespace giacenza {

/// Runs an action when a key, with just the modifiers given, is pressed in a field that has the focus.
void suTasto(QWidget* campo, const QKeySequence& tasto, std::function<void()> azione);

} // namespace giacenza
