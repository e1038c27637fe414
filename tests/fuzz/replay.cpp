// Runs what the fuzzers kept, and what a few small changes make of it, without a fuzzer: the same on each
// day.

#include "fuzz/fuzz.h"

#include <QDir>

#include <algorithm>
#include <csignal>
#include <random>

using namespace Qt::StringLiterals;

namespace {

constexpr int varianti = 100;

QByteArray corrente;

/// What the rule was broken with, for whoever looks for it.
void mostraCorrente(int)
{
    std::fprintf(stderr, "with: %s\n", corrente.toPercentEncoding(" []=;,:{}'/").constData());
}

void prova(const QByteArray& byte)
{
    corrente = byte;
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(byte.constData()),
                           static_cast<std::size_t>(byte.size()));
}

QByteArray cambiata(QByteArray byte, std::minstd_rand& caso)
{
    const auto posto = [&] { return static_cast<qsizetype>(caso() % static_cast<unsigned>(byte.size())); };
    for (int volte = 1 + static_cast<int>(caso() % 4); volte > 0 && !byte.isEmpty(); --volte) {
        switch (caso() % 4) {
        case 0:
            byte[posto()] = static_cast<char>(caso());
            break;
        case 1:
            byte.truncate(posto());
            break;
        case 2:
            byte.insert(posto(), byte.mid(posto(), 8));
            break;
        default:
            byte.remove(posto(), 1 + posto() % 4);
        }
    }
    return byte;
}

} // namespace

int main(int argc, char** argv)
{
    std::signal(SIGABRT, mostraCorrente);
    std::minstd_rand caso(1);
    int file = 0;
    for (int i = 1; i < argc; ++i) {
        const QDir cartella(QString::fromLocal8Bit(argv[i]));
        const QFileInfoList trovati = cartella.entryInfoList(QDir::Files, QDir::Name);
        for (const QFileInfo& uno : trovati) {
            QFile letto(uno.filePath());
            giacenza::fuzz::vale(letto.open(QIODevice::ReadOnly), "the corpus can be read");
            const QByteArray byte = letto.readAll();
            prova(byte);
            for (int n = 0; n < varianti; ++n)
                prova(cambiata(byte, caso));
            ++file;
        }
    }
    prova({});
    std::printf("%d files, %d variants of each\n", file, varianti);
    return file > 0 ? 0 : 1;
}
