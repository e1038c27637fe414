#include "reports/engine/logo.h"

#include "base/percorsi.h"

#include <QDir>
#include <QFileInfo>
#include <QImageReader>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace giacenza::report {

namespace {

/// A logo of 60 mm at 600 dots per inch; a picture from a camera would swell every document.
constexpr int latoMassimo = 1400;

} // namespace

QImage leggiLogo(const QString& percorso)
{
    if (percorso.isEmpty())
        return {};
    QFileInfo file(percorsoNativo(percorso));
    if (file.isDir())
        file.setFile(QDir(file.filePath()), u"logo.gif"_s);
    QImageReader lettore(file.filePath());
    lettore.setDecideFormatFromContent(true);
    lettore.setAutoTransform(true);
    QImage letta = lettore.read();
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
