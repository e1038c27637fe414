#pragma once

#include "reports/engine/definizione.h"

#include <QImage>

#include <variant>

/// What stands on a page, ready to be painted: positions in millimetres from the paper's upper left corner.
/// Each primitive names the control that it comes from.
namespace giacenza::report {

/// One line of text.
struct TestoPagina
{
    QString controllo;
    QString testo;
    Carattere carattere;
    QRectF area;     ///< as wide as the text is, as high as a line
    double base = 0; ///< of the line, from the paper's top
};

struct CornicePagina
{
    QString controllo;
    QRectF area;
    double tratto = 0.2;
    QColor coloreTratto;
    QColor fondo;
};

struct ImmaginePagina
{
    QString controllo;
    QRectF area;
    QImage immagine;
};

struct BarrePagina
{
    QString controllo;
    QRectF area; ///< from the first bar to the last
    std::vector<QRectF> barre;
};

using Primitiva = std::variant<CornicePagina, TestoPagina, ImmaginePagina, BarrePagina>;
using PaginaReport = std::vector<Primitiva>;

/// The primitive's area, and the primitive moved down.
QRectF areaDi(const Primitiva& primitiva);
Primitiva spostata(const Primitiva& primitiva, double giu);

} // namespace giacenza::report
