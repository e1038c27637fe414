#pragma once

#include "database/connessione.h"

#include <QStringList>

namespace giacenza {

/// The number of the newest version of the register in a kind of database; 0 where it has none.
int ultimaVersioneRegistro(Dialetto dialetto);

/// The statements of one version, from 1. definitore: who the triggers run as, as MariaDB writes it; SQLite
/// does not look at it.
QStringList istruzioniRegistro(Dialetto dialetto, int versione, const QString& definitore);

/// The statements that let an account of MariaDB read the register and add notes to it. conto: as
/// 'user'@'host', quoted.
QStringList istruzioniPrivilegiRegistro(const QString& base, const QString& conto);

/// What a preparation found and did.
struct RegistroPreparato
{
    int prima = 0;                ///< the version that was there, 0 for none
    int versione = 0;             ///< the version that is there now
    QString definitore;           ///< who the triggers run as; empty on SQLite
    QStringList conti;            ///< the accounts that may now read it; empty on SQLite
    QStringList possonoCambiarlo; ///< the accounts whose rights on the whole base reach the register too
    QStringList daConcedere;      ///< what somebody with more rights has to run, statement by statement
};

/// Prepares the register of a depot's database: runs the versions that are not there yet, each once, and on
/// MariaDB gives the workstations' accounts their rights and puts back triggers that are missing or belong to
/// somebody who is gone. Whatever an interruption left is taken up again by the next call.
///
/// accesso: an administrator's. fino: the last version to run, 0 for the newest. Throws ErroreDatabase, and
/// Errore when the database is of no known kind, has no depot's tables, or somebody else is preparing it.
RegistroPreparato preparaRegistro(const Accesso& accesso, int fino = 0);

} // namespace giacenza
