#pragma once

#include <QString>

namespace deposito {

/// A connection string without its password, whatever the case of the word and the braces around it.
QString senzaParola(const QString& stringa);

/// What whoever helps needs to know, as text: versions, system, drivers, archive without password, files,
/// plug-ins.
QString informazioniAssistenza(const QString& stringa, const QString& fileIni);

/// The operator's guide, where it is installed or in the tree; empty when it is not there.
QString fileGuida();

} // namespace deposito
