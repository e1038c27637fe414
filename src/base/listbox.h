#pragma once

#include <QStringList>

#include <optional>

namespace giacenza {

/// The number of the error that refuses a goods type.
inline constexpr int erroreNaturaMerce = 512;

/// The lines of a goods-type file in file order, empty ones included; nothing when there is no file. Lines
/// end in LF or CR LF, the text is UTF-8 or Windows-1252. percorso: with either separator. Throws
/// Errore, also for what is no plain file and for more than limiteLista.
std::optional<QStringList> leggiElenco(const QString& percorso);

/// Adds a line to a goods-type file, with the line end and the encoding that the file has; makes the file,
/// with "VEDI DDT" as its first line, where there is none. A failure leaves the file as it was.
///
/// riga: the text as it is to stand. Throws ErroreNumerato 512 for a line that is there already, for a blank
/// one and for more than one line; Errore when the file cannot be read or written.
void aggiungiAllElenco(const QString& percorso, const QString& riga);

} // namespace giacenza
