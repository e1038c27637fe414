#include "reports/engine/logo.h"

#include "base/filelimitato.h"
#include "base/percorsi.h"

#include <giacenza/Errore.h>

#include <QBuffer>
#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace giacenza::report {

namespace {

/// A logo of 60 mm at 600 dots per inch; a picture from a camera would swell every document.
constexpr int latoMassimo = 1400;

constexpr qint64 puntiMassimi = 50'000'000;

/// While it lives the toolkit decodes pictures of that many points: its own limit, which is the process's, is
/// narrower and refuses without a word.
class SpazioDecodifica
{
public:
    SpazioDecodifica() : mPrima(QImageReader::allocationLimit())
    {
        constexpr int bytePerPunto = 8;
        constexpr int byteDiUnMegabyte = 1 << 20;
        QImageReader::setAllocationLimit(static_cast<int>(puntiMassimi * bytePerPunto / byteDiUnMegabyte) +
                                         1);
    }
    SpazioDecodifica(const SpazioDecodifica&) = delete;
    SpazioDecodifica& operator=(const SpazioDecodifica&) = delete;
    ~SpazioDecodifica() { QImageReader::setAllocationLimit(mPrima); }

private:
    int mPrima;
};

/// A null image when there is no file, or none that is a picture.
QImage decodificata(const QString& percorso)
{
    std::optional<QByteArray> byte = leggiFileLimitato(percorso, limiteLogo);
    if (!byte)
        return {};
    QBuffer contenuto(&*byte);
    QImageReader lettore(&contenuto);
    lettore.setDecideFormatFromContent(true);
    lettore.setAutoTransform(true);
    const QSize misura = lettore.size();
    if (static_cast<qint64>(misura.width()) * misura.height() > puntiMassimi)
        throw Errore(u"Il logo \"%1\" non è stato letto: ha %2 per %3 punti, più di 50 milioni."_s.arg(
            percorso, QString::number(misura.width()), QString::number(misura.height())));
    const SpazioDecodifica spazio;
    return lettore.read();
}

} // namespace

QImage leggiLogo(const QString& percorso)
{
    if (percorso.isEmpty())
        return {};
    QFileInfo file(percorsoNativo(percorso));
    if (file.isDir())
        file.setFile(QDir(file.filePath()), u"logo.gif"_s);
    QImage letta = decodificata(file.filePath());
    if (letta.isNull())
        return {};
    if (letta.width() > latoMassimo || letta.height() > latoMassimo)
        letta = letta.scaled(latoMassimo, latoMassimo, Qt::KeepAspectRatio, Qt::SmoothTransformation);

    // What is archived may not hold transparency.
    QImage opaca(letta.size(), QImage::Format_RGB32);
    opaca.fill(Qt::white);
    QPainter(&opaca).drawImage(0, 0, letta);
    return opaca;
}

} // namespace giacenza::report
