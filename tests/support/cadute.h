#pragma once

#include "support/bancadati.h"

#include <QRegularExpression>

namespace giacenza::prove {

/// The server of the database, a MariaDB, itself ends every connection of the workstation's user. The test
/// fails when there is none.
inline void interrompi(const BancaDati& base)
{
    static const QRegularExpression utente(QStringLiteral("UID=([^;]+)"));
    const auto aperte =
        base.righe(QStringLiteral("select id from information_schema.processlist where user='%1'")
                       .arg(utente.match(base.stringa()).captured(1)));
    for (const QStringList& collegamento : aperte)
        base.esegui(QStringLiteral("kill %1;").arg(collegamento.first()));
    return aperte.size();
}

} // namespace giacenza::prove
