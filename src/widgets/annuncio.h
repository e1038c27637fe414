#pragma once

class QWidget;

namespace giacenza {

/// Tells a screen reader that a text, which does not have the focus, has something new to say. Nothing is
/// said of one that is empty or hidden.
void annuncia(QWidget* etichetta);

/// From now on the label announces itself when it appears.
void annunciaComparsa(QWidget* etichetta);

} // namespace giacenza
