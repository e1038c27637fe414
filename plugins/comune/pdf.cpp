#include "comune/pdf.h"

#include "comune/pagine.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QPdfWriter>

using namespace Qt::StringLiterals;

namespace giacenza::comune {

std::optional<QByteArray> pdf(Documento& documento, QWidget* padre)
{
    constexpr int puntiPerPollice = 1200;
    QBuffer memoria;
    memoria.open(QIODevice::WriteOnly);
    {
        QPdfWriter scrittore(&memoria);
        scrittore.setPdfVersion(QPagedPaintDevice::PdfVersion_A1b);
        scrittore.setResolution(puntiPerPollice);
        scrittore.setTitle(documento.titolo());
        scrittore.setCreator(QCoreApplication::applicationName());
        scrittore.setPageLayout(documento.impaginazione());
        if (!dipingiPagine(documento, tutte(documento), scrittore, padre))
            return std::nullopt;
    }
    if (!memoria.data().startsWith("%PDF-") || !memoria.data().trimmed().endsWith("%%EOF"))
        throw Errore(u"Impossibile comporre il PDF di \"%1\"."_s.arg(documento.titolo()));
    return memoria.data();
}

} // namespace giacenza::comune
