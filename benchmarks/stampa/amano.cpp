// One run: the same notice painted by hand, from values that are already there, into a PDF of the same kind.

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
    const Cronometro cronometro;
    dipingi(percorso, argomenti.value(2));
    const double millisecondi = cronometro.millisecondi();
    return stampaEsito(millisecondi, QFile(percorso).size() > 0 ? 1 : 0, 1);
}
