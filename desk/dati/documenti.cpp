#include "desk/dati/documenti.h"

#include "base/servizi.h"
#include "comune/archivio.h"

#include <QCoreApplication>
#include <QDir>

using namespace Qt::StringLiterals;

namespace giacenza::desk {

namespace {

/// A document's first print has its name, the later ones have a number behind it. Looked up one by one: a
/// folder of years is not to be listed for one case.
std::vector<DocumentoTrovato> trovati(const QString& cartella, const QString& nome)
{
    std::vector<DocumentoTrovato> tutti;
    const QString base = QDir(cartella).absoluteFilePath(comune::nomeSicuro(nome));
    for (int copia = 1;; ++copia) {
        const QFileInfo file(copia == 1 ? base + u".pdf"_s
                                        : u"%1-%2.pdf"_s.arg(base, QString::number(copia)));
        if (!file.isFile())
            return tutti;
        tutti.push_back({file.absoluteFilePath(), file.lastModified()});
    }
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
