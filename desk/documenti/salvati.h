#pragma once

#include "desk/documenti/carta.h"
#include "desk/documenti/conto.h"
#include "desk/documenti/estratto.h"

#include <giacenza/Documento.h>

namespace giacenza::documenti {

/// Keeps a document as PDF in the paper's folder and returns the file's path. A file is there whole or not at
/// all, and an earlier one is never replaced: the new one is called "-2", "-3"… Throws Errore.
QString salvaPdf(Documento& documento, const QString& nome, const Carta& carta);

/// In which forms a statement is wanted.
struct Forme
{
    bool pdf = true;
    bool csv = false;
    bool xlsx = false;

    bool nessuna() const { return !pdf && !csv && !xlsx; }
};

/// Keeps a statement in each of the forms, in a folder, the same way; returns the files' paths. Throws
/// Errore; what was kept before stays.
QStringList salvaEstratto(const Estratto& estratto, const Forme& forme, const Carta& carta,
                          const QString& cartella);

} // namespace giacenza::documenti
