#pragma once

#include <QString>

namespace deposito {

/// What --prepara-registro did, for the one who administers the archive.
struct EsitoRegistro
{
    QString testo; ///< Italian, several lines
    bool pronto = false;
};

/// Prepares the register in the archive of a connection string, an administrator's. Never throws what the
/// database refuses: the text tells it.
EsitoRegistro preparaRegistroDi(const QString& stringa);

} // namespace deposito
