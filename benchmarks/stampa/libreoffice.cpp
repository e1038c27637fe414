// One run: a letter with the same lines and logo, converted to PDF by LibreOffice without a window. Its
// profile stays for the next run: making it is not the letter's time.

#include "benchmarks/quadro/esito.h"
#include "benchmarks/stampa/lettera.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QUrl>

#include <sys/resource.h>

using namespace Qt::StringLiterals;

using namespace banco;

namespace {

/// A flat OpenDocument text: a paragraph for each line.
QByteArray lettera(const QString& logo)
{
    QString testo = QStringLiteral(
                        R"(<?xml version="1.0" encoding="UTF-8"?>
<office:document xmlns:office="urn:oasis:names:tc:opendocument:xmlns:office:1.0"
 xmlns:text="urn:oasis:names:tc:opendocument:xmlns:text:1.0"
 xmlns:draw="urn:oasis:names:tc:opendocument:xmlns:drawing:1.0"
 xmlns:svg="urn:oasis:names:tc:opendocument:xmlns:svg-compatible:1.0"
 office:version="1.2" office:mimetype="application/vnd.oasis.opendocument.text">
<office:body><office:text>
<text:p><draw:frame text:anchor-type="as-char" svg:width="%1mm" svg:height="%2mm"><draw:image><office:binary-data>)")
                        .arg(logoLarghezza)
                        .arg(logoAltezza);
    QFile immagine(logo);
    if (immagine.open(QIODevice::ReadOnly))
        testo += QString::fromLatin1(immagine.readAll().toBase64());
    testo += u"</office:binary-data></draw:image></draw:frame></text:p>\n"_s;
    for (const Scritta& scritta : scritte)
        testo += u"<text:p>%1</text:p>\n"_s.arg(QString::fromUtf16(scritta.testo).toHtmlEscaped());
    return (testo + u"</office:text></office:body></office:document>\n"_s).toUtf8();
}

bool converti(const QString& documento, const QString& cartella, const QString& profilo)
{
    QProcess processo;
    processo.start(u"soffice"_s,
                   {u"-env:UserInstallation="_s + QUrl::fromLocalFile(profilo).toString(), u"--headless"_s,
                    u"--convert-to"_s, u"pdf"_s, u"--outdir"_s, cartella, documento});
    if (processo.waitForFinished(-1) && processo.exitCode() == 0)
        return true;
    std::fprintf(stderr, "soffice: %s %s\n", qPrintable(processo.errorString()),
                 processo.readAllStandardError().constData());
    return false;
}

} // namespace

int main(int argc, char* argv[])
{
    const QCoreApplication applicazione(argc, argv);
    const QString base = QFileInfo(QCoreApplication::arguments().value(1)).absoluteFilePath();
    const QTemporaryDir cartella(base + u"/lettera-XXXXXX"_s);
    QFile documento(cartella.filePath(u"avviso.fodt"_s));
    const QByteArray testo = lettera(QCoreApplication::arguments().value(2));
    if (!documento.open(QIODevice::WriteOnly) || documento.write(testo) != testo.size())
        return EXIT_FAILURE;
    documento.close();
    const Cronometro cronometro;
    if (!converti(documento.fileName(), cartella.path(), base + u"/libreoffice"_s))
        return EXIT_FAILURE;
    const double millisecondi = cronometro.millisecondi();
    rusage uso{};
    getrusage(RUSAGE_CHILDREN, &uso);
    return stampaEsito(millisecondi, QFile::exists(cartella.filePath(u"avviso.pdf"_s)) ? 1 : 0, 1,
                       uso.ru_maxrss);
}
