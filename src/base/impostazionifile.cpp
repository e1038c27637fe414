#include "base/impostazioni.h"
#include "base/lettoreini.h"
#include "base/percorsi.h"
#include "base/servizi.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

/// What a plug-in file brings or the host registers, and goes before the component's own.
std::unique_ptr<LettoreIni> lettoreEsterno()
{
    std::unique_ptr<ParteEsterna> esterno = creaParteFacoltativa(QStringView(classeLettoreIni).toString());
    auto* lettore = dynamic_cast<LettoreIni*>(esterno.get());
    if (lettore)
        esterno.release();
    return std::unique_ptr<LettoreIni>(lettore);
}

} // namespace

QString LeggiIni(const QString& sezione, const QString& chiave)
{
    return LeggiIni(sezione, QStringList(chiave)).front();
}

QStringList LeggiIni(const QString& sezione, const QStringList& chiavi)
{
    const QString& percorso = impostazioni().percorsoFileIni;
    const std::unique_ptr<LettoreIni> esterno = lettoreEsterno();
    if (!esterno)
        return LettoreIniProprio::leggi(percorso, sezione, chiavi);
    QStringList valori;
    for (const QString& chiave : chiavi)
        valori += esterno->leggi(percorso, sezione, chiave);
    return valori;
}

QStringList LeggiPiede()
{
    QStringList righe = LeggiIni(u"Lettere"_s, QStringList{u"Piede1"_s, u"Piede2"_s, u"Piede3"_s});
    righe.removeIf([](const QString& riga) { return riga.trimmed().isEmpty(); });
    return righe;
}

QString cartellaDocumenti()
{
    const QString scelta = LeggiIni(u"DLLStampe"_s, u"CartellaDocumenti"_s);
    const QFileInfo impostate(percorsoNativo(impostazioni().percorsoFileIni));
    const QString relativa = scelta.isEmpty() ? u"documenti"_s : percorsoNativo(scelta);
    return QDir::cleanPath(impostate.absoluteDir().absoluteFilePath(relativa));
}

ParteDi<ModuloStampa> CaricaModuloStampa()
{
    try {
        const QString identificativo = LeggiIni(u"DLLStampe"_s, u"IdentificativoDll"_s);
        ParteDi<ModuloStampa> modulo =
            creaParteDi<ModuloStampa>(u"ReportDoc%1.cModuliStampa"_s.arg(identificativo));
        if (!modulo.parte && identificativo.isEmpty()) {
            modulo.motivo = u"Manca la voce IdentificativoDll della sezione DLLStampe nel file "
                            "delle impostazioni \"%1\".\n"_s.arg(impostazioni().percorsoFileIni) +
                            modulo.motivo;
        }
        return modulo;
    } catch (const std::exception& errore) {
        return {nullptr, QString::fromUtf8(errore.what())};
    }
}

} // namespace giacenza
