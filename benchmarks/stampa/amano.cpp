// One run: the same notice painted by hand, after its rows were read by the driver's calls alone, into a PDF
// of the same kind. What is painted is a table of texts that was there before: the same amount of work.

#include "benchmarks/chiave/riferimento/base.h"
#include "benchmarks/quadro/esito.h"
#include "benchmarks/stampa/lettera.h"

#include <QFile>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

using namespace banco;

namespace {

constexpr int puntiPerPollice = 1200;
constexpr double perMm = puntiPerPollice / 25.4;

void scrivi(QPainter& pittore)
{
    QFont carattere(u"Liberation Sans"_s);
    carattere.setHintingPreference(QFont::PreferNoHinting);
    for (const Scritta& scritta : scritte) {
        carattere.setPointSizeF(scritta.punti);
        carattere.setBold(scritta.grassetto);
        pittore.setFont(carattere);
        pittore.setPen(QColor::fromRgb(scritta.colore));
        pittore.drawText(QPointF(scritta.x, scritta.base) * perMm, QString::fromUtf16(scritta.testo));
    }
}

void disegna(QPainter& pittore, const QString& logo)
{
    pittore.drawImage(QRectF(logoX * perMm, logoY * perMm, logoLarghezza * perMm, logoAltezza * perMm),
                      QImage(logo));
    for (const Filo& filo : fili) {
        pittore.setPen(QPen(QColor::fromRgb(filo.colore), filo.tratto * perMm));
        pittore.drawLine(QPointF(filo.x, filo.y) * perMm, QPointF(filo.x + filo.larghezza, filo.y) * perMm);
    }
    for (const Barra& barra : barre) {
        pittore.fillRect(
            QRectF(barra.x * perMm, barreY * perMm, barra.larghezza * perMm, barreAltezza * perMm),
            Qt::black);
    }
}

/// What a notice is made of; the number of rows.
std::size_t leggiNotizia()
{
    nudo::Base base;
    base.apri();
    std::vector<int> caso;
    for (int colonna = 1; colonna <= 49; ++colonna)
        caso.push_back(colonna);
    return base.leggi("SELECT letve00f.*, giace00f.* from letve00f INNER JOIN giace00f ON lefili=gifili and "
                      "lenrlv=ginrlv and leanlv=gianlv WHERE ginrgi='1' and giangi=2015;",
                      caso)
               .size() +
           base.leggi("select * from clien where Codice=4711", {1, 2, 3, 4, 5, 6}).size() +
           base.leggi("select * from filiali where codice='MI'", {1, 2, 3, 4, 5}).size() +
           base.leggi("select * from filiali where codice='TO'", {1, 2, 3, 4, 5}).size() +
           base.leggi("Select IstrSuAvvGiac from ekelvorqzt_tabge00f;", {1}).size();
}

void dipingi(const QString& percorso, const QString& logo)
{
    QPdfWriter scrittore(percorso);
    scrittore.setPdfVersion(QPagedPaintDevice::PdfVersion_A1b);
    scrittore.setResolution(puntiPerPollice);
    scrittore.setPageSize(QPageSize(QPageSize::A4));
    scrittore.setPageMargins(QMarginsF());
    QPainter pittore(&scrittore);
    disegna(pittore, logo);
    scrivi(pittore);
}

} // namespace

int main(int argc, char* argv[])
{
    const QGuiApplication applicazione(argc, argv);
    const QStringList argomenti = QCoreApplication::arguments();
    const QTemporaryDir cartella(argomenti.value(1) + u"/amano-XXXXXX"_s);
    const QString percorso = cartella.filePath(u"avviso.pdf"_s);
    constexpr long righe = 5;
    try {
        const Cronometro cronometro;
        const std::size_t lette = leggiNotizia();
        dipingi(percorso, argomenti.value(2));
        const double millisecondi = cronometro.millisecondi();
        return stampaEsito(millisecondi, QFile(percorso).size() > 0 ? static_cast<long>(lette) : 0, righe);
    } catch (const std::exception& errore) {
        std::fprintf(stderr, "%s\n", errore.what());
        return EXIT_FAILURE;
    }
}
