#pragma once

#include <QString>

#include <optional>

namespace giacenza::stampa {

/// What becomes of a document once it is in the archive.
enum class Modalita
{
    pdf,       ///< nothing more
    anteprima, ///< it is shown, and may be printed from there
    stampante, ///< it goes to the system's default printer
};

/// The mode that a settings file names, without regard to case and blanks around it; pdf when it names none,
/// nothing when the name is unknown.
std::optional<Modalita> leggiModalita(const QString& testo);

} // namespace giacenza::stampa
