#include "base/lettoreini.h"

#include "base/filelimitato.h"
#include "base/percorsi.h"
#include "base/testofile.h"

// The text reaches the library as UTF-8 already: it has nothing to convert.
#define SI_NO_CONVERSION
#include <SimpleIni.h>

namespace giacenza {

QString LettoreIniProprio::leggi(const QString& percorsoFile, const QString& sezione, const QString& chiave)
{
    return leggi(percorsoFile, sezione, QStringList(chiave)).front();
}

QStringList LettoreIniProprio::leggi(const QString& percorsoFile, const QString& sezione,
                                     const QStringList& chiavi)
{
    const auto byte = leggiFileLimitato(percorsoNativo(percorsoFile), limiteImpostazioni);
    return daContenuto(byte.value_or(QByteArray()), sezione, chiavi);
}

QStringList LettoreIniProprio::daContenuto(const QByteArray& contenuto, const QString& sezione,
                                           const QStringList& chiavi)
{
    const QByteArray testo = decodifica(contenuto).testo.toUtf8();
    CSimpleIniA voci(true, true);
    const bool letto = voci.LoadData(testo.constData(), static_cast<size_t>(testo.size())) >= 0;
    QStringList valori;
    for (const QString& chiave : chiavi)
        valori += letto ? QString::fromUtf8(
                              voci.GetValue(sezione.toUtf8().constData(), chiave.toUtf8().constData(), ""))
                        : QString();
    return valori;
}

} // namespace giacenza
