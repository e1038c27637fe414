#include "comune/archivio.h"

#include <giacenza/Errore.h>

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QSaveFile>
#include <QScopeGuard>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace giacenza::comune {

namespace {

/// The system's reason, in the operator's words where they help him to mend it.
QString motivo(int errore)
{
    switch (errore) {
    case ENOSPC:
    case EDQUOT:
        return u"il disco è pieno"_s;
    case EACCES:
    case EPERM:
        return u"non è permesso scrivere nella cartella"_s;
    case EROFS:
        return u"il disco è protetto da scrittura"_s;
    case EFBIG:
        return u"il file supera la misura permessa"_s;
    default:
        return errore == 0 ? u"la scrittura non è completa"_s : qt_error_string(errore);
    }
}

/// errno is read first: everything else may change it.
[[noreturn]] void nonScritto(const QString& percorso)
{
    const QString perche = motivo(errno);
    throw Errore(
        u"Impossibile scrivere il documento \"%1\": %2."_s.arg(QDir::toNativeSeparators(percorso), perche));
}

QDir apriCartella(const QString& cartella)
{
    QDir dir(cartella);
    errno = 0;
    if (!dir.mkpath(u"."_s)) {
        throw Errore(u"Impossibile creare la cartella dei documenti \"%1\": %2."_s.arg(
            QDir::toNativeSeparators(dir.absolutePath()), motivo(errno)));
    }
    return dir;
}

/// Writes all bytes and waits until the disk has them: a full disk may only show then. No buffer of its own,
/// so that each failure shows where it happens.
void scrivi(QFile& file, const QByteArray& byte, const QString& percorso)
{
    errno = 0;
    if (!file.open(QIODevice::WriteOnly | QIODevice::NewOnly | QIODevice::Unbuffered))
        nonScritto(percorso);
    if (file.write(byte) != byte.size() || ::fsync(file.handle()) != 0)
        nonScritto(percorso);
    file.close();
    if (file.error() != QFile::NoError || file.size() != byte.size())
        nonScritto(percorso);
}

/// Renames a file unless the new name is taken, in one step: the toolkit's own renaming looks first and
/// renames then, and two workstations may look at the same instant. Sets errno.
bool rinomina(const QString& da, const QString& a)
{
    const QByteArray vecchio = QFile::encodeName(da);
    const QByteArray nuovo = QFile::encodeName(a);
    if (::renameat2(AT_FDCWD, vecchio.constData(), AT_FDCWD, nuovo.constData(), RENAME_NOREPLACE) == 0)
        return true;
    // File systems over the network that do not know the flag know links.
    return errno == EINVAL && ::link(vecchio.constData(), nuovo.constData()) == 0 &&
           ::unlink(vecchio.constData()) == 0;
}

} // namespace

QString nomeSicuro(const QString& nome)
{
    constexpr qsizetype byteMassimi = 200; // leaves room for a number and the ending
    QString sicuro = nome;
    for (QChar& carattere : sicuro) {
        if (!carattere.isLetterOrNumber() && !u"_-. "_s.contains(carattere))
            carattere = u'-';
    }
    if (sicuro.startsWith(u'.'))
        sicuro[0] = u'-';
    while (sicuro.toUtf8().size() > byteMassimi)
        sicuro.chop(1);
    return sicuro.isEmpty() ? u"documento"_s : sicuro;
}

QString archivia(const QString& cartella, const QString& nome, const QByteArray& byte,
                 const QString& estensione)
{
    const QDir dir = apriCartella(cartella);
    const QString base = dir.absoluteFilePath(nomeSicuro(nome));
    QString percorso = base + estensione;
    QFile file(dir.absoluteFilePath(u".%1.%2.tmp"_s.arg(
        nomeSicuro(nome), QString::number(QRandomGenerator::global()->generate64(), 36))));
    auto togli = qScopeGuard([&] { file.remove(); });
    scrivi(file, byte, percorso);

    for (int copia = 2; !rinomina(file.fileName(), percorso); ++copia) {
        if (errno != EEXIST)
            nonScritto(percorso);
        percorso = u"%1-%2%3"_s.arg(base, QString::number(copia), estensione);
    }
    togli.dismiss();
    return percorso;
}

QString sostituisci(const QString& percorso, const QByteArray& byte)
{
    QSaveFile file(percorso);
    errno = 0;
    // The toolkit's commit() overlooks what fails when its buffer is emptied: a full disk would leave an
    // empty file.
    const bool scritto = file.open(QIODevice::WriteOnly) && file.write(byte) == byte.size() && file.flush() &&
                         ::fsync(file.handle()) == 0 && file.commit();
    if (scritto)
        return {};
    return errno == 0 ? file.errorString() : motivo(errno);
}

} // namespace giacenza::comune
