#include "reports/engine/codiceabarre.h"

#include <zint.h>

#include <algorithm>
#include <memory>

namespace giacenza::report {

namespace {

constexpr double moduloMassimo = 0.5;
constexpr double moduloMinimo = 0.2;

struct LiberaSimbolo
{
    void operator()(zint_symbol* simbolo) const { ZBarcode_Delete(simbolo); }
};

} // namespace

std::optional<CodiceABarre> code128(const QString& testo, const QRectF& area, Allineamento allineamento)
{
    const std::unique_ptr<zint_symbol, LiberaSimbolo> simbolo(ZBarcode_Create());
    if (testo.isEmpty() || !simbolo)
        return std::nullopt;
    simbolo->symbology = BARCODE_CODE128;
    simbolo->input_mode = UNICODE_MODE;
    simbolo->show_hrt = 0;
    const QByteArray utf8 = testo.toUtf8();
    const int esito = ZBarcode_Encode_and_Buffer_Vector(
        simbolo.get(), reinterpret_cast<const unsigned char*>(utf8.constData()),
        static_cast<int>(utf8.size()), 0);
    if (esito >= ZINT_ERROR || !simbolo->vector || simbolo->width <= 0)
        return std::nullopt;

    const double modulo = std::min(moduloMassimo, area.width() / simbolo->width);
    if (modulo < moduloMinimo)
        return std::nullopt;
    const double larghezza = modulo * simbolo->width;
    double x = area.x();
    if (allineamento == Allineamento::destra)
        x = area.right() - larghezza;
    else if (allineamento == Allineamento::centro)
        x += (area.width() - larghezza) / 2;

    CodiceABarre codice{QRectF(x, area.y(), larghezza, area.height()), {}};
    const double unita = larghezza / static_cast<double>(simbolo->vector->width);
    for (const zint_vector_rect* r = simbolo->vector->rectangles; r; r = r->next) {
        codice.barre.emplace_back(x + static_cast<double>(r->x) * unita, area.y(),
                                  static_cast<double>(r->width) * unita, area.height());
    }
    return codice;
}

} // namespace giacenza::report
