#include "stampa/anteprima.h"

#include "comune/pagine.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QPaintEngine>
#include <QPainter>
#include <QPointer>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QTranslator>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza::stampa {

namespace {

/// The toolkit's own window speaks Italian while it is open, whatever the host speaks; and the pointer, which
/// waits while a document is made, does not wait for it.
class InItaliano
{
public:
    InItaliano()
    {
        if (mTraduzioni.load(u"qtbase_it"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
            QCoreApplication::installTranslator(&mTraduzioni);
        QApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    InItaliano(const InItaliano&) = delete;
    InItaliano& operator=(const InItaliano&) = delete;
    ~InItaliano() { QApplication::restoreOverrideCursor(); }

private:
    QTranslator mTraduzioni; // takes itself away
};

/// The pages that the operator chose in the printing dialog.
comune::Pagine scelte(const QPrinter& stampante, const Documento& documento)
{
    const comune::Pagine intere = comune::tutte(documento);
    if (stampante.printRange() != QPrinter::PageRange || stampante.fromPage() < 1)
        return intere;
    const int da = std::min(stampante.fromPage() - 1, intere.a - 1);
    return {da, std::clamp(stampante.toPage(), da + 1, intere.a)};
}

/// The preview keeps what is painted and shows it afterwards, so it must not be left in the middle by letting
/// events through: no progress here.
void dipingiAnteprima(Documento& documento, QPrinter& stampante)
{
    QPainter pittore(&stampante);
    for (int pagina = 0; pagina < documento.pagine(); ++pagina) {
        if (pagina > 0)
            stampante.newPage();
        if (!documento.dipingi(pagina, pittore))
            return;
    }
}

void dipingi(Documento& documento, QPrinter& stampante, QWidget* finestra)
{
    documento.ricomincia();
    if (stampante.paintEngine()->type() == QPaintEngine::Picture)
        dipingiAnteprima(documento, stampante);
    else
        comune::dipingiPagine(documento, scelte(stampante, documento), stampante, finestra);
}

} // namespace

void mostraAnteprima(Documento& documento, QWidget* padre)
{
    const InItaliano italiano;
    QPrinter stampante(QPrinter::HighResolution);
    stampante.setPageLayout(documento.impaginazione());
    stampante.setDocName(documento.titolo());
    const QPointer<QPrintPreviewDialog> finestra = new QPrintPreviewDialog(&stampante, padre);
    finestra->setObjectName(u"dlgAnteprima"_s);
    finestra->setWindowTitle(documento.titolo());
    // An exception must not pass through the toolkit's event loop.
    std::exception_ptr guasto;
    QObject::connect(finestra, &QPrintPreviewDialog::paintRequested, [&](QPrinter* carta) {
        try {
            dipingi(documento, *carta, finestra);
        } catch (...) {
            guasto = std::current_exception();
            // Later: the preview is still at its pages.
            if (finestra)
                QMetaObject::invokeMethod(finestra, &QDialog::reject, Qt::QueuedConnection);
        }
    });
    finestra->exec();
    delete finestra;
    if (guasto)
        std::rethrow_exception(guasto);
}

} // namespace giacenza::stampa
