#pragma once

#include <functional>

class QString;
class QWidget;

namespace giacenza {

/// Tells a screen reader that a text, which does not have the focus, has something new to say. Nothing is
/// said of one that is empty or hidden.
void annuncia(QWidget* etichetta);

/// Where announcements go: the label and what is to be read out.
using Annunciatore = std::function<void(QWidget* etichetta, const QString& testo)>;

/// Puts another one in the place of the screen reader's, for tests; an empty one puts that back.
void impostaAnnunciatore(Annunciatore annunciatore);

/// From now on the label announces itself when it appears.
void annunciaComparsa(QWidget* etichetta);

} // namespace giacenza
