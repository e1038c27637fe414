#pragma once

class QLineEdit;

namespace giacenza {

/// Takes the blanks off both ends of what was typed, so that it can be seen. Returns whether there were any.
bool togliSpazi(QLineEdit* campo);

/// The same each time that the field is left, for any reason; a field that cannot be typed in keeps its text.
void togliSpaziUscendo(QLineEdit* campo);

} // namespace giacenza
