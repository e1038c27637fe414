#pragma once

#include "host/avvio/sceltaarchivio.h"

namespace deposito {

/// What trying an archive showed, in words for who sets the program up.
struct EsitoProva
{
    bool riuscita = false;
    QString testo{};     ///< what is wrong and what to do, or that all is well; Italian
    QString dettaglio{}; ///< the driver's own words; empty when it said none
};

/// Connects, and looks whether the component could work there: driver, server, name and password, base,
/// tables, how names are told apart, the user's rights. Writes nothing.
///
/// scelta: lacks nothing. Waits up to the limits of a connection; opens no window. Never throws.
EsitoProva provaArchivio(const SceltaArchivio& scelta, const QString& parola);

/// The same of a connection string that came another way.
EsitoProva provaStringa(const QString& stringa);

} // namespace deposito
