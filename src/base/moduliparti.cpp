#include "base/moduliparti.h"

#include "base/parti.h"
#include "base/testoerrore.h"

#include <QCoreApplication>
#include <QDir>
#include <QJsonArray>
#include <QJsonObject>
#include <QPluginLoader>

#include <dlfcn.h>
#include <elf.h>
#include <link.h>
#include <mutex>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

const QString iidVoluto = QStringLiteral(GIACENZA_FABBRICA_PARTI_IID);

// The folder of the file that this code was loaded from: the component's library, or the program itself where
// it is linked in.
QString cartellaPropria()
{
    Dl_info dove{};
    if (dladdr(reinterpret_cast<const void*>(&fileModuli), &dove) == 0 || dove.dli_fname == nullptr)
        return QCoreApplication::applicationDirPath();
    return QFileInfo(QFile::decodeName(dove.dli_fname)).absolutePath();
}

// Folders that a program added; see aggiungiCartellaParti().
struct Aggiunte
{
    std::mutex serratura;
    QStringList cartelle;
};

Aggiunte& aggiunte()
{
    static Aggiunte uniche;
    return uniche;
}

// True for a shared library that has all its bytes: its last table ends within the file.
bool libreriaIntera(const QString& percorso)
{
    QFile file(percorso);
    ElfW(Ehdr) testata{};
    if (!file.open(QIODevice::ReadOnly) ||
        file.read(reinterpret_cast<char*>(&testata), sizeof testata) != sizeof testata)
        return false;
    const quint64 fine = testata.e_shoff + quint64(testata.e_shnum) * testata.e_shentsize;
    return QByteArrayView(testata.e_ident, SELFMAG) == QByteArrayView(ELFMAG, SELFMAG) &&
           fine <= static_cast<quint64>(file.size());
}

bool serve(const QJsonObject& metadati, const QString& nomeClasse)
{
    const QJsonArray classi = metadati.value(u"MetaData"_s).toObject().value(u"classi"_s).toArray();
    for (const QJsonValue& classe : classi) {
        if (classe.toString().compare(nomeClasse, Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

ParteProvata parteDallaRadice(QPluginLoader& modulo, const QString& nomeClasse)
{
    QObject* radice = modulo.instance();
    if (!radice)
        return {nullptr, u"non si carica (%1)"_s.arg(modulo.errorString())};
    auto* fabbrica = qobject_cast<FabbricaParti*>(radice);
    if (!fabbrica)
        return {nullptr, u"non offre l'interfaccia %1"_s.arg(iidVoluto)};
    return provaACreare([&] { return fabbrica->crea(nomeClasse); });
}

} // namespace

QStringList cartelleParti()
{
    QStringList cartelle =
        qEnvironmentVariable("GIACENZA_PARTI").split(QDir::listSeparator(), Qt::SkipEmptyParts);
    static const QString propria = cartellaPropria() + u"/giacenza"_s;
    cartelle.append(propria);
    {
        const std::lock_guard guardia(aggiunte().serratura);
        cartelle.append(aggiunte().cartelle);
    }
    cartelle.append(QStringLiteral(GIACENZA_CARTELLA_INSTALLATA));
    cartelle.removeDuplicates();
    return cartelle;
}

void aggiungiCartellaParti(const QString& cartella)
{
    const std::lock_guard guardia(aggiunte().serratura);
    aggiunte().cartelle.append(cartella);
}

ParteProvata provaACreare(const FabbricaParte& fabbrica)
{
    try {
        std::unique_ptr<ParteEsterna> parte = fabbrica();
        if (parte)
            return {std::move(parte), {}};
        return {nullptr, u"nessun oggetto creato"_s};
    } catch (...) {
        return {nullptr, testoErrore()};
    }
}

QStringList fileModuli(const QStringList& cartelle)
{
    QStringList percorsi;
    for (const QString& nome : cartelle) {
        const QDir cartella(nome);
        const QStringList trovati = cartella.entryList({u"*.so"_s}, QDir::Files | QDir::Readable, QDir::Name);
        for (const QString& file : trovati)
            percorsi.append(cartella.absoluteFilePath(file));
    }
    return percorsi;
}

ParteProvata parteDalModulo(const QString& percorso, const QString& nomeClasse)
{
    QPluginLoader modulo(percorso);
    modulo.setLoadHints(QLibrary::PreventUnloadHint);
    const QJsonObject metadati = modulo.metaData();
    if (metadati.isEmpty()) {
        // Libraries of another kind may lie in the same folder; a file that is none, or half of one, is worth
        // a word.
        if (libreriaIntera(percorso))
            return {};
        return {nullptr, u"non è un modulo leggibile"_s};
    }
    if (!serve(metadati, nomeClasse))
        return {};
    const QString iid = metadati.value(u"IID"_s).toString();
    if (iid != iidVoluto)
        return {nullptr, u"offre %1 e non %2"_s.arg(iid, iidVoluto)};
    return parteDallaRadice(modulo, nomeClasse);
}

} // namespace giacenza
