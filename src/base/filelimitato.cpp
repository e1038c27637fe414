#include "base/filelimitato.h"

#include <giacenza/Errore.h>

#include <QFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

class Descrittore
{
public:
    explicit Descrittore(int numero) : mNumero(numero) {}
    Descrittore(const Descrittore&) = delete;
    Descrittore& operator=(const Descrittore&) = delete;
    ~Descrittore()
    {
        if (mNumero >= 0)
            ::close(mNumero);
    }
    int numero() const { return mNumero; }

private:
    int mNumero;
};

[[noreturn]] void rifiuta(const QString& percorso, const QString& motivo)
{
    throw Errore(u"Il file \"%1\" non è stato letto: %2."_s.arg(percorso, motivo));
}

[[noreturn]] void rifiutaPerErrore(const QString& percorso, int errore)
{
    rifiuta(percorso, errore == EACCES ? u"manca il permesso di leggerlo"_s
                                       : u"il sistema dà l'errore %1"_s.arg(errore));
}

void controlla(const QString& percorso, const struct stat& stato, qint64 limite)
{
    if (!S_ISREG(stato.st_mode))
        rifiuta(percorso, u"non è un file normale"_s);
    if (stato.st_size > limite)
        rifiuta(percorso, u"supera %1 byte"_s.arg(limite));
}

QByteArray tutto(const QString& percorso, int descrittore, qint64 limite)
{
    constexpr qint64 passo = 65536;
    QByteArray byte;
    for (;;) {
        const qsizetype prima = byte.size();
        byte.resize(prima + passo);
        const ssize_t letti = ::read(descrittore, byte.data() + prima, static_cast<std::size_t>(passo));
        if (letti < 0 && errno == EINTR) {
            byte.resize(prima);
            continue;
        }
        if (letti < 0)
            rifiutaPerErrore(percorso, errno);
        byte.resize(prima + letti);
        if (byte.size() > limite)
            rifiuta(percorso, u"supera %1 byte"_s.arg(limite));
        if (letti == 0)
            return byte;
    }
}

} // namespace

std::optional<QByteArray> leggiFileLimitato(const QString& percorso, qint64 limite,
                                            const std::function<void(const struct stat&)>& controllo)
{
    const QByteArray nome = QFile::encodeName(percorso);
    struct stat stato = {};
    // Before opening: opening a device may already do something to it.
    if (::stat(nome.constData(), &stato) != 0) {
        if (errno == ENOENT || errno == ENOTDIR)
            return {};
        rifiutaPerErrore(percorso, errno);
    }
    controlla(percorso, stato, limite);
    // What stood there may have been changed for a pipe meanwhile: opening does not wait, and is looked at.
    const Descrittore file(::open(nome.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY));
    if (file.numero() < 0 || ::fstat(file.numero(), &stato) != 0)
        rifiutaPerErrore(percorso, errno);
    controlla(percorso, stato, limite);
    if (controllo)
        controllo(stato);
    return tutto(percorso, file.numero(), limite);
}

} // namespace giacenza
