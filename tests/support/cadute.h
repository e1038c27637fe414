#pragma once

#include "support/bancadati.h"

#include <QRegularExpression>

namespace giacenza::prove {

/// The server of the database, a MariaDB, itself ends every connection of the workstation's user. Returns how
/// many there were.
inline qsizetype interrompi(const BancaDati& base)
{
    using namespace Qt::StringLiterals;
    static const QRegularExpression utente(u"UID=([^;]+)"_s);
    const auto aperte = base.righe(u"select id from information_schema.processlist where user='%1'"_s.arg(
        utente.match(base.stringa()).captured(1)));
    for (const QStringList& collegamento : aperte)
        base.esegui(u"kill %1;"_s.arg(collegamento.first()));
    return aperte.size();
}

} // namespace giacenza::prove
