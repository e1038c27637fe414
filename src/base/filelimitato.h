#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>

struct stat;

namespace giacenza {

/// How large a file from outside may be, in bytes.
inline constexpr qint64 limiteImpostazioni = 1'000'000;
inline constexpr qint64 limiteLista = 1'000'000;
inline constexpr qint64 limiteLogo = 20'000'000;

/// The bytes of a file that somebody else wrote, read without ever waiting for it: only a plain file, or a
/// link to one, is opened for reading, and never more than the limit is taken in, even while it grows.
///
/// percorso: with "/" as separator. limite: in bytes. Nothing when there is no file under that name. Throws
/// Errore, in Italian and with the file's name, for anything else: a folder, a pipe, a device, a file that is
/// larger than the limit or cannot be read.
///
/// controllo: looks at the file that is open, before it is read; what it throws comes out.
std::optional<QByteArray>
leggiFileLimitato(const QString& percorso, qint64 limite,
                  const std::function<void(const struct stat& aperto)>& controllo = {});

} // namespace giacenza
