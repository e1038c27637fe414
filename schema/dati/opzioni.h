#pragma once

#include "schema/dati/riempimento.h"

#include <QStringList>

namespace giacenza::dimostrazione {

/// What the command line asks for.
struct Opzioni
{
    QString stringa; ///< the connection string
    Richiesta richiesta;
    bool aiuto = false;
};

/// Reads the arguments, without the program's own name. oggi: stands where the line gives no day. Throws
/// Errore, with a text for who wrote them.
Opzioni leggiOpzioni(const QStringList& argomenti, QDate oggi);

/// What --aiuto prints.
QString testoAiuto();

} // namespace giacenza::dimostrazione
