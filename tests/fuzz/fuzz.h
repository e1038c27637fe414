#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// What libFuzzer calls, and replay.cpp: one try with any bytes. Returns 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* byte, std::size_t quanti);

namespace giacenza::fuzz {

/// A rule that must hold whatever came in; ends the process when it does not.
inline void vale(bool regola, const char* quale)
{
    if (regola)
        return;
    std::fprintf(stderr, "Rule broken: %s\n", quale);
    std::abort();
}

/// The bytes of a try, taken in pieces.
class Pezzi
{
public:
    Pezzi(const std::uint8_t* byte, std::size_t quanti)
        : mByte(reinterpret_cast<const char*>(byte), static_cast<qsizetype>(quanti))
    {}

    bool finiti() const { return mPosto >= mByte.size(); }
    int numero() { return finiti() ? 0 : static_cast<unsigned char>(mByte.at(mPosto++)); }
    /// Up to the next line end.
    QByteArray riga()
    {
        const qsizetype fine = mByte.indexOf('\n', mPosto);
        const QByteArray pezzo = mByte.mid(mPosto, fine < 0 ? -1 : fine - mPosto);
        mPosto = fine < 0 ? mByte.size() : fine + 1;
        return pezzo;
    }
    QString testo() { return QString::fromUtf8(riga()); }
    QByteArray resto()
    {
        const QByteArray pezzo = mByte.mid(mPosto);
        mPosto = mByte.size();
        return pezzo;
    }

private:
    QByteArray mByte;
    qsizetype mPosto = 0;
};

/// A file whose content is each try's.
class FileDiProva
{
public:
    explicit FileDiProva(const QString& nome)
        : mCartella(QStringLiteral("/dev/shm/giacenza-fuzz-XXXXXX")), mNome(mCartella.filePath(nome))
    {}

    const QString& nome() const { return mNome; }
    void scrivi(const QByteArray& byte) const
    {
        QFile file(mNome);
        vale(file.open(QIODevice::WriteOnly) && file.write(byte) == byte.size(), "the file can be written");
    }

private:
    QTemporaryDir mCartella;
    QString mNome;
};

} // namespace giacenza::fuzz
