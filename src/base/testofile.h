#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace giacenza {

enum class Codifica
{
    utf8,
    windows1252
};

struct TestoLetto
{
    QString testo;
    Codifica codifica;
};

/// The text of a file's bytes: UTF-8, with or without byte-order mark, which is left out; bytes that are not
/// UTF-8 are Windows-1252.
TestoLetto decodifica(const QByteArray& byte);

/// The bytes of a text, nothing when the encoding lacks one of its characters.
std::optional<QByteArray> codifica(const QString& testo, Codifica codifica);

} // namespace giacenza
