#pragma once

#include "reports/primitive.h"

#include <giacenza/Documento.h>

#include <functional>

namespace giacenza::report {

/// A composed report: its pages, and whom to ask before each is painted.
class DocumentoReport : public Documento
{
public:
    /// pagine: at least one. prosegui: asked before each page; false gives the print up.
    DocumentoReport(const QString& titolo, const QPageSize& carta, std::vector<PaginaReport> pagine,
                    std::function<bool()> prosegui);

    QString titolo() const override { return mTitolo; }
    QPageLayout impaginazione() const override;
    int pagine() const override { return static_cast<int>(mPagine.size()); }
    bool dipingi(int pagina, QPainter& pittore) override;

    const PaginaReport& pagina(int indice) const { return mPagine.at(static_cast<std::size_t>(indice)); }

private:
    QString mTitolo;
    QPageSize mCarta;
    std::vector<PaginaReport> mPagine;
    std::function<bool()> mProsegui;
};

} // namespace giacenza::report
