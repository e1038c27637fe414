#include "reports/engine/pittore.h"

#include "reports/engine/caratteri.h"

#include <QPainter>

namespace giacenza::report {

namespace {

QRectF inUnita(const QRectF& mm)
{
    return QRectF(mm.topLeft() * unitaPerMm, mm.size() * unitaPerMm);
}

/// Paints the primitives of a page, keeping the last font, since most lines share it.
class PittorePagina
{
public:
    explicit PittorePagina(QPainter& pittore) : mPittore(pittore) {}

    void operator()(const TestoPagina& testo)
    {
        if (!mCarattere || *mCarattere != testo.carattere) {
            mPittore.setFont(fontDi(testo.carattere));
            mCarattere = testo.carattere;
        }
        mPittore.setPen(testo.carattere.colore);
        mPittore.drawText(QPointF(testo.area.x(), testo.base) * unitaPerMm, testo.testo);
    }

    void operator()(const CornicePagina& cornice)
    {
        const QRectF area = inUnita(cornice.area);
        if (cornice.fondo.isValid())
            mPittore.fillRect(area, cornice.fondo);
        if (!cornice.coloreTratto.isValid())
            return;
        QPen penna(cornice.coloreTratto, cornice.tratto * unitaPerMm);
        penna.setCapStyle(Qt::FlatCap);
        penna.setJoinStyle(Qt::MiterJoin);
        mPittore.setPen(penna);
        mPittore.setBrush(Qt::NoBrush);
        if (area.height() > 0)
            mPittore.drawRect(area);
        else
            mPittore.drawLine(area.topLeft(), area.topRight());
    }

    void operator()(const ImmaginePagina& immagine)
    {
        mPittore.drawImage(inUnita(immagine.area), immagine.immagine);
    }

    void operator()(const BarrePagina& codice)
    {
        for (const QRectF& barra : codice.barre)
            mPittore.fillRect(inUnita(barra), Qt::black);
    }

private:
    QPainter& mPittore;
    std::optional<Carattere> mCarattere;
};

} // namespace

void dipingiPagina(const PaginaReport& pagina, QPainter& pittore)
{
    constexpr double mmPerPollice = 25.4;
    pittore.save();
    pittore.scale(pittore.device()->logicalDpiX() / mmPerPollice / unitaPerMm,
                  pittore.device()->logicalDpiY() / mmPerPollice / unitaPerMm);
    pittore.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform | QPainter::LosslessImageRendering);
    PittorePagina pagine(pittore);
    for (const Primitiva& primitiva : pagina)
        std::visit(pagine, primitiva);
    pittore.restore();
}

} // namespace giacenza::report
