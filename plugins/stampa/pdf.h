#pragma once

#include <giacenza/Documento.h>

#include <QByteArray>

#include <optional>

namespace giacenza::stampa {

/// A document as PDF/A-1b, whole in memory: a document is small, and a file is then written in one go or not
/// at all. Nothing when the operator gave the print up. Throws Errore when it cannot be made.
std::optional<QByteArray> pdf(Documento& documento);

} // namespace giacenza::stampa
