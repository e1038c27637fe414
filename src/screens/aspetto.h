#pragma once

#include <QString>

namespace giacenza {

/// The style sheet of the working screens: what tells a field to type in from one to look at, and a value
/// that counts from a left-over. Its colours follow the application's palette, light or dark.
QString aspettoSchermata();

} // namespace giacenza
