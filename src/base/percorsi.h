#pragma once

#include <QString>

namespace giacenza {

/// A path as the host wrote it, with the platform's own separators.
QString percorsoNativo(const QString& percorso);

} // namespace giacenza
