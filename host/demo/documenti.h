#pragma once

#include <QStringList>

/// The documents in a folder, which may hold those of an earlier demonstration.
QStringList documenti(const QString& cartella);

/// The document of a key, "number_year", that is new in the folder; throws Imprevisto when there is none.
/// prima: what documenti() gave before.
QString documentoNuovo(const QString& chiave, const QString& cartella, const QStringList& prima);
