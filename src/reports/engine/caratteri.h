#pragma once

#include "reports/engine/definizione.h"

#include <QFont>
#include <QFontMetricsF>

namespace giacenza::report {

/// Painting and measuring use the same unit, a hundredth of a millimetre, so that a text is as wide on the
/// paper as it was measured, whatever the resolution of the device.
inline constexpr double unitaPerMm = 100;

/// The font of a text: Liberation Sans, else DejaVu Sans, else what the system calls sans-serif; unhinted,
/// its size in the unit above.
QFont fontDi(const Carattere& carattere);

/// One line of a text that was broken.
struct RigaTesto
{
    QString testo;
    double larghezza = 0; ///< mm
};

/// Breaks texts into lines. Fonts are kept for as long as the object lives.
class Misuratore
{
public:
    /// The lines of a text in a width in mm: broken at blanks, and inside a word that is wider than a line.
    /// CR LF, CR and LF end a line; other control characters count as blanks. The empty text has no lines.
    std::vector<RigaTesto> righe(const QString& testo, const Carattere& carattere, double larghezza);

    /// The line shortened until it ends in dots within the width.
    RigaTesto accorciata(const QString& testo, const Carattere& carattere, double larghezza);

    double altezzaRiga(const Carattere& carattere); ///< mm, from one line to the next
    double ascendente(const Carattere& carattere);  ///< mm, from a line's top to its base

private:
    struct Voce
    {
        Carattere carattere;
        QFont font;
        QFontMetricsF metrica;
    };
    const Voce& voce(const Carattere& carattere);

    std::vector<Voce> mVoci;
};

} // namespace giacenza::report
