#include "reports/engine/documentoreport.h"

#include "reports/engine/pittore.h"

namespace giacenza::report {

DocumentoReport::DocumentoReport(const QString& titolo, const QPageSize& carta,
                                 std::vector<PaginaReport> pagine, Ascoltatore ascoltatore)
    : mTitolo(titolo), mCarta(carta), mPagine(std::move(pagine)), mAscoltatore(std::move(ascoltatore))
{}

QPageLayout DocumentoReport::impaginazione() const
{
    QPageLayout impaginazione(mCarta, QPageLayout::Portrait, QMarginsF(), QPageLayout::Millimeter);
    impaginazione.setMode(QPageLayout::FullPageMode);
    return impaginazione;
}

bool DocumentoReport::dipingi(int pagina, QPainter& pittore)
{
    if (!mAscoltatore.prosegui())
        return false;
    dipingiPagina(mPagine.at(static_cast<std::size_t>(pagina)), pittore);
    return true;
}

void DocumentoReport::ricomincia()
{
    if (mAscoltatore.ricomincia)
        mAscoltatore.ricomincia();
}

} // namespace giacenza::report
