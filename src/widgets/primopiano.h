#pragma once

class QWidget;

namespace giacenza {

/// Keeps the screen's window above all others, or puts it back to normal stacking, without moving, resizing
/// or activating it. finestra: a top-level window; one without a native window is left alone.
void SempreInPrimoPiano(QWidget* finestra, bool primoPiano);

} // namespace giacenza
