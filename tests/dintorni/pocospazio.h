#pragma once

#include "dintorni/discopiccolo.h"
#include "support/bancadati.h"
#include "support/registromessaggi.h"

#include <functional>

namespace giacenza::prove {

/// What an operator was told after an operation, and how far the rows have got.
struct Esito
{
    qsizetype passo = 0; ///< which of the operation's states; 0: nothing was written
    bool completo = false;
    QStringList scatole = {};
    QString stato = {};

    bool detto(const QString& testo) const
    {
        return stato.contains(testo) || scatole.join(u'\n').contains(testo);
    }
};

/// An operation of a screen on a disk that is in its way.
struct Impresa
{
    std::function<void()> prepara;  ///< rows and screen as they are before it
    std::function<void()> compi;    ///< what the operator does
    std::function<QString()> righe; ///< what the tables hold of it
    std::function<QString()> stato; ///< the status line
    QStringList stati;              ///< what righe() may give, in order: before, between, done
    /// Whether the operator was told what is true, with the sentence of the failure.
    std::function<bool(const Esito&, const QString& frase)> vero;
    /// The next press; the whole must be there then, once. Empty: the same once more.
    std::function<void(const Esito&)> riprova = {};
};

/// Comes before the base of a test that makes its files there.
struct SulDisco
{
    DiscoPiccolo mDisco{1024};
};

/// SQLite's two ways to write: the journal beside the file that an archive of ours has ("wal"), and its own
/// ("delete").
void scegliGiornale(const BancaDati& base, const QString& giornale);

/// The operation on a disk with no page left, with one, and so on until it finds room enough: each time the
/// rows are one of its states and the operator heard the truth; with room again, the next press finishes.
/// Prints how often it failed.
void provaOgniPagina(DiscoPiccolo& disco, RegistroMessaggi& messaggi, const BancaDati& base,
                     const Impresa& impresa);

/// The operation on a disk that is read-only for a while. fermo: what lets go of the file, which no disk can
/// do without that is made read-only.
void provaSolaLettura(DiscoPiccolo& disco, RegistroMessaggi& messaggi, const Impresa& impresa,
                      const std::function<void()>& fermo);

} // namespace giacenza::prove
