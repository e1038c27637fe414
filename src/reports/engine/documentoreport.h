#pragma once

#include "reports/engine/primitive.h"

#include <giacenza/Documento.h>

#include <functional>

namespace giacenza::report {

/// Who is asked while a document is painted.
struct Ascoltatore
{
    std::function<bool()> prosegui;     ///< before each page; false gives the print up
    std::function<void()> ricomincia{}; ///< a new print of the same pages begins; may be empty
};

/// A composed report: its pages, and whom to ask before each is painted.
class DocumentoReport : public Documento
{
public:
    /// pagine: at least one.
    DocumentoReport(const QString& titolo, const QPageSize& carta, std::vector<PaginaReport> pagine,
                    Ascoltatore ascoltatore);

    QString titolo() const override { return mTitolo; }
    QPageLayout impaginazione() const override;
    int pagine() const override { return static_cast<int>(mPagine.size()); }
    bool dipingi(int pagina, QPainter& pittore) override;
    void ricomincia() override;

    const PaginaReport& pagina(int indice) const { return mPagine.at(static_cast<std::size_t>(indice)); }

private:
    QString mTitolo;
    QPageSize mCarta;
    std::vector<PaginaReport> mPagine;
    Ascoltatore mAscoltatore;
};

} // namespace giacenza::report
