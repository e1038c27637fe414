#include "base/testofile.h"

#include <QStringDecoder>
#include <QStringEncoder>

namespace giacenza {

namespace {

constexpr char nomeWindows1252[] = "windows-1252";

} // namespace

TestoLetto decodifica(const QByteArray& byte)
{
    if (byte.isValidUtf8()) {
        QStringDecoder utf8(QStringConverter::Utf8);
        return {utf8.decode(byte), Codifica::utf8};
    }
    QStringDecoder windows1252(nomeWindows1252);
    return {windows1252.decode(byte), Codifica::windows1252};
}

std::optional<QByteArray> codifica(const QString& testo, Codifica codifica)
{
    if (codifica == Codifica::utf8)
        return testo.toUtf8();
    QStringEncoder windows1252(nomeWindows1252);
    const QByteArray byte = windows1252.encode(testo);
    if (windows1252.hasError())
        return {};
    return byte;
}

} // namespace giacenza
