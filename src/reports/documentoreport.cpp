#include "reports/documentoreport.h"

#include "reports/pittore.h"

namespace giacenza::report {

DocumentoReport::DocumentoReport(const QString& titolo, const QPageSize& carta,
                                 std::vector<PaginaReport> pagine, std::function<bool()> prosegui)
    : mTitolo(titolo), mCarta(carta), mPagine(std::move(pagine)), mProsegui(std::move(prosegui))
{}

QPageLayout DocumentoReport::impaginazione() const
{
    QPageLayout impaginazione(mCarta, QPageLayout::Portrait, QMarginsF(), QPageLayout::Millimeter);
    impaginazione.setMode(QPageLayout::FullPageMode);
    return impaginazione;
}

bool DocumentoReport::dipingi(int pagina, QPainter& pittore)
{
    if (!mProsegui())
        return false;
    dipingiPagina(mPagine.at(static_cast<std::size_t>(pagina)), pittore);
    return true;
}

} // namespace giacenza::report
