#include "reports/engine/primitive.h"

namespace giacenza::report {

QRectF areaDi(const Primitiva& primitiva)
{
    return std::visit([](const auto& p) { return p.area; }, primitiva);
}

Primitiva spostata(const Primitiva& primitiva, double giu)
{
    Primitiva copia = primitiva;
    std::visit([giu](auto& p) { p.area.translate(0, giu); }, copia);
    if (auto* testo = std::get_if<TestoPagina>(&copia))
        testo->base += giu;
    if (auto* codice = std::get_if<BarrePagina>(&copia)) {
        for (QRectF& barra : codice->barre)
            barra.translate(0, giu);
    }
    return copia;
}

} // namespace giacenza::report
