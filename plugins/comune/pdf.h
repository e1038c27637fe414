#pragma once

#include <giacenza/Documento.h>

#include <QByteArray>

#include <optional>

namespace giacenza::comune {

/// A document as PDF/A-1b, whole in memory: a document is small, and a file is then written in one go or not
/// at all.
///
/// padre: over which the progress of a long document is shown, may be null. Nothing when the operator gave
/// the print up. Throws Errore when it cannot be made.
std::optional<QByteArray> pdf(Documento& documento, QWidget* padre);

} // namespace giacenza::comune
