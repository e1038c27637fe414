#include "desk/dati/documenti.h"

#include "base/servizi.h"
#include "comune/archivio.h"

#include <QCoreApplication>
#include <QDir>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza::desk {

namespace {

/// So many numbers without a document behind one another: there are no later prints.
constexpr int vuotiMassimi = 20;

/// A document's first print has its name, the later ones have a number behind it; one may have been taken
/// away. Looked up one by one: a folder of years is not to be listed for one case.
std::vector<DocumentoTrovato> trovati(const QString& cartella, const QString& nome)
{
    std::vector<DocumentoTrovato> tutti;
    const QString base = QDir(cartella).absoluteFilePath(comune::nomeSicuro(nome));
    int vuoti = 0;
    for (int copia = 1; vuoti < vuotiMassimi; ++copia) {
        const QFileInfo file(copia == 1 ? base + u".pdf"_s
                                        : u"%1-%2.pdf"_s.arg(base, QString::number(copia)));
        if (!file.isFile()) {
            ++vuoti;
            continue;
        }
        vuoti = 0;
        tutti.push_back({file.absoluteFilePath(), file.lastModified()});
    }
    // A print takes the first number that is free.
    std::stable_sort(tutti.begin(), tutti.end(),
                     [](const DocumentoTrovato& uno, const DocumentoTrovato& altro) {
                         return uno.scritto < altro.scritto;
                     });
    return tutti;
}

QString nomeCaso(const ChiaveGiacenza& caso)
{
    return caso.numero + u'_' + QString::number(caso.anno);
}

} // namespace

Cartelle cartelleDocumenti()
{
    return {cartellaDocumenti(), QDir(QCoreApplication::applicationDirPath()).absoluteFilePath(u"imp"_s)};
}

std::vector<DocumentoTrovato> avvisiArchiviati(const Cartelle& cartelle, const ChiaveGiacenza& caso)
{
    return trovati(cartelle.documenti, nomeCaso(caso));
}

std::vector<DocumentoTrovato> buonFineArchiviati(const Cartelle& cartelle, const ChiaveGiacenza& caso)
{
    return trovati(cartelle.documenti, nomeCaso(caso) + u"_buonfine"_s);
}

std::vector<DocumentoTrovato> lettereArchiviate(const Cartelle& cartelle, const ChiaveSpedizione& ldv)
{
    return trovati(cartelle.lettere,
                   u"LDV_%1_%2_%3"_s.arg(ldv.filiale, ldv.numero, QString::number(ldv.anno)));
}

} // namespace giacenza::desk
