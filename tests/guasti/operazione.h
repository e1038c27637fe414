#pragma once

#include "guasti/guastiodbc.h"
#include "support/bancadati.h"
#include "support/registromessaggi.h"
#include "support/tagliaconferma.h"

#include <functional>
#include <optional>
#include <vector>

namespace giacenza::prove {

/// A kind of failure and the sentence that the operator is owed for it.
struct Classe
{
    std::string nome;
    Guasto guasto = {};
    QString frase = {};
    bool sempre = false; ///< it comes again at each try
};

/// The classes of one kind of database, "sqlite" or "mariadb".
std::vector<Classe> classiDiGuasto(const std::string& base);

/// After an operation in which something failed: how far the rows have got, and what the operator was told.
struct Accaduto
{
    qsizetype passo = 0; ///< 0: nothing was written
    bool completo = false;
    QStringList scatole = {}; ///< texts of the boxes
    QString stato = {};       ///< the status line
    Classe classe = {};

    /// Whether a box or the status line says a text.
    bool detto(const QString& testo) const;
    /// The sentence of the class.
    bool dettoIlGuasto() const { return detto(classe.frase); }
};

/// An operation of a screen as something that may fail at each of its steps.
struct Operazione
{
    std::function<void()> prepara;  ///< rows and screen as they are before it
    std::function<void()> compi;    ///< what the operator does
    std::function<QString()> righe; ///< what the tables hold of it, on a connection of its own
    std::function<QString()> stato; ///< the status line
    /// Whether the operator was told what is true, by how far it got.
    std::function<bool(const Accaduto&)> vero;
    /// The next try; the whole must be there then, once. Empty: what the operator does once more.
    std::function<void(const Accaduto&)> riprova = {};
    /// Whether the screen shows it done; for what writes nothing.
    std::function<bool()> mostrata = [] { return true; };
    /// Whose calls fail; compi must wait for those of other threads.
    Fili fili = Fili::questo;
};

/// Runs an operation once, and notes each state that its transactions leave; then again and again, each
/// driver's call of it failing in turn with each class. Afterwards the rows must be one of those states, the
/// operator told what is true, and the next try succeed. Prints how many failures that was.
void provaOgniGuasto(const std::string& tipo, RegistroMessaggi& messaggi, const Operazione& operazione);

/// The same on the wire: the connection is cut at each packet that the operation sends, before the server
/// gets it and before its answer comes back. rete: what the screen's connections pass through.
void provaOgniTaglio(TagliaConferma& rete, RegistroMessaggi& messaggi, const Operazione& operazione);

/// The cable between the screens and the server: in the way of a MariaDB, nothing for SQLite.
class Cavo
{
public:
    explicit Cavo(const BancaDati& base);

    /// The connection string that passes through it.
    QString stringa() const { return mStringa; }

    /// Every failure of an operation, on the wire too where there is one.
    void prova(const std::string& tipo, RegistroMessaggi& messaggi, const Operazione& operazione);

private:
    std::optional<TagliaConferma> mRete;
    QString mStringa;
};

} // namespace giacenza::prove
