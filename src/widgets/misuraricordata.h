#pragma once

#include <QString>

class QDialog;

namespace giacenza {

/// Gives a dialog, which has its usual size, the size that the user left it with, never larger than its
/// screen; and remembers the size, once the user has changed it, when the dialog closes.
///
/// nome: what it is called in the user's settings. What cannot be used there is ignored.
void ricordaMisura(QDialog& finestra, const QString& nome);

} // namespace giacenza
