#pragma once

#include "desk/dati/regole.h"

#include <QColor>

class QWidget;

namespace giacenza::desk {

/// The colour of a state's words on the window's ground, light or dark. Words say the same: the colour is for
/// whoever looks from afar.
QColor colore(Stato stato);

/// What is wrong, and what is missing.
QColor coloreAllarme();

/// Gives a window the desk's style sheet, in the colours of the desktop whenever they change.
void vesti(QWidget* finestra);

/// Shows words in a label as a sign of a state: coloured, or plain when colore is invalid.
void tingi(QWidget* etichetta, const QColor& colore);

} // namespace giacenza::desk
