#pragma once

class QWidget;

namespace giacenza {

/// The longest text of a line field, in characters: more than any column of a depot, little enough to be laid
/// out and searched for at once.
inline constexpr int lunghezzaMassima = 1000;

/// Gives every line field and editable list within a window that limit, unless it has a shorter one or a
/// mask. Call it after setupUi(). Text boxes have their own class, see CampoTesto.
void limitaCampi(QWidget* finestra);

} // namespace giacenza
