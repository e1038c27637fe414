#pragma once

#include "data/istruzioni.h"

#include <QDateTime>
#include <QString>

#include <vector>

namespace giacenza::desk {

/// Where documents lie, absolute.
struct Cartelle
{
    QString documenti; ///< notices and closures
    QString lettere;   ///< the waybills that were issued
};

/// Those of the settings and of the program. Throws what reading the settings throws.
Cartelle cartelleDocumenti();

/// A PDF that was found.
struct DocumentoTrovato
{
    QString file; ///< absolute
    QDateTime scritto;
};

/// The documents of a case or of a waybill that the archive has, each print one, the oldest first.
std::vector<DocumentoTrovato> avvisiArchiviati(const Cartelle& cartelle, const ChiaveGiacenza& caso);
std::vector<DocumentoTrovato> buonFineArchiviati(const Cartelle& cartelle, const ChiaveGiacenza& caso);
std::vector<DocumentoTrovato> lettereArchiviate(const Cartelle& cartelle, const ChiaveSpedizione& ldv);

} // namespace giacenza::desk
