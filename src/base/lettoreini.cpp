#include "base/lettoreini.h"

#include "base/percorsi.h"
#include "base/testofile.h"

#include <QFile>
#include <QFileInfo>

// The text reaches the library as UTF-8 already: it has nothing to convert.
#define SI_NO_CONVERSION
#include <SimpleIni.h>

namespace giacenza {

namespace {

QByteArray byteDelFile(const QString& percorso)
{
    QFile file(percorso);
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly))
        return {};
    return file.readAll();
}

} // namespace

QString LettoreIniProprio::leggi(const QString& percorsoFile, const QString& sezione, const QString& chiave)
{
    const QByteArray testo = decodifica(byteDelFile(percorsoNativo(percorsoFile))).testo.toUtf8();
    CSimpleIniA voci(true, true);
    if (voci.LoadData(testo.constData(), static_cast<size_t>(testo.size())) < 0)
        return {};
    return QString::fromUtf8(voci.GetValue(sezione.toUtf8().constData(), chiave.toUtf8().constData(), ""));
}

} // namespace giacenza
