#include "base/impostazioni.h"
#include "base/lettoreini.h"
#include "base/percorsi.h"
#include "base/servizi.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

// A reader that the host registers, or a plug-in file brings, goes before the component's own.
std::unique_ptr<LettoreIni> lettore()
{
    std::unique_ptr<ParteEsterna> esterno = creaParteFacoltativa(QStringView(classeLettoreIni).toString());
    if (auto* lettore = dynamic_cast<LettoreIni*>(esterno.get())) {
        esterno.release();
        return std::unique_ptr<LettoreIni>(lettore);
    }
    return std::make_unique<LettoreIniProprio>();
}

} // namespace

QString LeggiIni(const QString& sezione, const QString& chiave)
{
    return lettore()->leggi(impostazioni().percorsoFileIni, sezione, chiave);
}

QStringList LeggiPiede()
{
    constexpr int righePiede = 3;
    QStringList righe;
    for (int i = 1; i <= righePiede; ++i) {
        const QString riga = LeggiIni(u"Lettere"_s, u"Piede%1"_s.arg(i));
        if (!riga.trimmed().isEmpty())
            righe << riga;
    }
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
