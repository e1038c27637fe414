#pragma once

#include "base/parti.h"

#include <giacenza/ModuloStampa.h>

#include <QStringList>

namespace giacenza {

/// One value of the settings file, read anew at each call, empty when absent. Throws what a reader from
/// outside throws, and Errore for a settings file that is there and is refused.
QString LeggiIni(const QString& sezione, const QString& chiave);
/// The same for several keys of a section, in their order; one reading of the file serves them all.
QStringList LeggiIni(const QString& sezione, const QStringList& chiavi);

/// The lines at the foot of every letter, at most three (section "Lettere", keys "Piede1" to "Piede3"): those
/// that are not empty, in their order. Throws what LeggiIni() throws.
QStringList LeggiPiede();

/// The folder in which documents are kept, absolute; it need not exist. Section "DLLStampe", key
/// "CartellaDocumenti", relative to the settings file; "documenti" beside it when nothing is written there.
/// Throws what LeggiIni() throws.
QString cartellaDocumenti();

/// The print module that the settings file names (section "DLLStampe", key "IdentificativoDll"); an empty
/// reference with the reason when it cannot be made.
ParteDi<ModuloStampa> CaricaModuloStampa();

} // namespace giacenza
