#pragma once

#include "support/bancadati.h"

#include <QRegularExpression>

namespace giacenza::prove {

/// The numbers of the sessions that the server of the database, a MariaDB, has open for the workstation's
/// user. A session that was closed is among them until the server has ended it.
inline QStringList sessioni(const BancaDati& base)
{
    using namespace Qt::StringLiterals;
    static const QRegularExpression utente(u"UID=([^;]+)"_s);
    QStringList numeri;
    for (const QStringList& sessione :
         base.righe(u"select id from information_schema.processlist where user='%1'"_s.arg(
             utente.match(base.stringa()).captured(1))))
        numeri << sessione.first();
    return numeri;
}

/// The server of the database, a MariaDB, itself ends every connection of the workstation's user. Returns how
/// many there were.
inline qsizetype interrompi(const BancaDati& base)
{
    using namespace Qt::StringLiterals;
    const QStringList aperte = sessioni(base);
    for (const QString& sessione : aperte)
        base.esegui(u"kill %1;"_s.arg(sessione));
    return aperte.size();
}

} // namespace giacenza::prove
