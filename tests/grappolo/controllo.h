#pragma once

#include "grappolo/turno.h"

namespace giacenza::prove {

/// Reads an archive when all have finished, and fails for everything that is wrong in it or not as it was
/// told. nome: how the archive is called in a failure; dove: with a user who may read it.
void controllaArchivio(const QString& nome, const QString& dove, const QList<Voce>& voci);

/// Prints what was done and what failed, and fails when too little was done to prove anything.
void raccontaTurno(const QList<Voce>& voci, int postazioni, int secondi);

} // namespace giacenza::prove
