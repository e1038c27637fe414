#include "dintorni/discopiccolo.h"

#include <QFile>

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <stdexcept>
#include <string>
#include <sys/mount.h>
#include <sys/statvfs.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

namespace {

constexpr char temporanei[] = "TMPDIR";

[[noreturn]] void fallito(const std::string& che)
{
    throw std::runtime_error(che + ": " + std::strerror(errno));
}

QByteArray zavorra(const QString& posto)
{
    return QFile::encodeName(posto) + "/zavorra";
}

} // namespace

DiscoPiccolo::DiscoPiccolo(qint64 pagine)
{
    const QByteArray posto = QFile::encodeName(percorso());
    const QByteArray misura = "mode=0700,size=" + QByteArray::number(pagine * pagina);
    if (::mount("prova", posto.constData(), "tmpfs", 0, misura.constData()) != 0)
        fallito("a disk of the test's own cannot be mounted; the program has to run under "
                "tests/dintorni/in-privato");
    if (qEnvironmentVariableIsSet(temporanei))
        mTemporaneiPrima = qgetenv(temporanei);
    qputenv(temporanei, posto);
}

DiscoPiccolo::~DiscoPiccolo()
{
    if (mTemporaneiPrima)
        qputenv(temporanei, *mTemporaneiPrima);
    else
        qunsetenv(temporanei);
    ::umount2(QFile::encodeName(percorso()).constData(), MNT_DETACH);
}

void DiscoPiccolo::riempi(qint64 libere)
{
    struct statvfs disco = {};
    if (::statvfs(QFile::encodeName(percorso()).constData(), &disco) != 0)
        fallito("statvfs");
    const qint64 byte =
        static_cast<qint64>(disco.f_bavail) * static_cast<qint64>(disco.f_frsize) - libere * pagina;
    if (byte < 0)
        throw std::runtime_error("the disk has less room than was to be left");
    const int file = ::open(zavorra(percorso()).constData(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    errno = file < 0 || byte == 0 ? errno : ::posix_fallocate(file, 0, byte);
    const bool riuscito = file >= 0 && (byte == 0 || errno == 0);
    if (file >= 0)
        ::close(file);
    if (!riuscito)
        fallito("the disk could not be filled");
}

void DiscoPiccolo::libera()
{
    if (::unlink(zavorra(percorso()).constData()) != 0 && errno != ENOENT)
        fallito("unlink");
}

void DiscoPiccolo::setSolaLettura(bool sola)
{
    constexpr unsigned long soloLettura = MS_RDONLY;
    const unsigned long come = MS_REMOUNT | (sola ? soloLettura : 0UL);
    if (::mount(nullptr, QFile::encodeName(percorso()).constData(), nullptr, come, nullptr) != 0)
        fallito(sola ? "remount read-only" : "remount writable");
}

} // namespace giacenza::prove
