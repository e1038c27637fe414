#pragma once

#include <span>
#include <vector>

/// Page breaking by heights alone; every length is in millimetres.
namespace giacenza::report {

/// A stretch of a block, from its top, that no page break may cross: a line of text, a picture.
struct Unito
{
    double da = 0;
    double a = 0;
};

struct Blocco
{
    double altezza = 0;
    std::vector<Unito> uniti;
    bool iniziaPagina = false; ///< starts a new page, unless the page is still empty
};

/// A slice of a block and where it comes to stand.
struct Pezzo
{
    std::size_t blocco = 0;
    double da = 0; ///< from the block's top
    double a = 0;
    double y = 0; ///< from the top of the page's body

    bool operator==(const Pezzo&) const = default;
};

/// Distributes blocks over pages of one body height.
///
/// A block that does not fit in what is left of a page goes whole to the next one if it fits there; one that
/// is higher than a page is cut where no united stretch is crossed, and straight through only if it holds
/// nothing else. Returns at least one page, which may be empty.
std::vector<std::vector<Pezzo>> impagina(std::span<const Blocco> blocchi, double altezzaPagina);

} // namespace giacenza::report
