#pragma once

#include "desk/dati/regole.h"
#include "desk/dati/sfondo.h"

#include <atomic>
#include <memory>
#include <vector>

namespace giacenza::desk {

/// What is to be read.
struct RichiestaElenco
{
    Accesso accesso;
    QString filiale; ///< that holds the goods; empty: all
    QDate oggi;
    int giorniFerma = 7;
};

/// Reads the open cases in a thread of its own, on a connection of its own, and hands them over as they come.
/// Used, and heard, in one thread.
class Scadenzario : public QObject
{
    Q_OBJECT

public:
    explicit Scadenzario(QObject* padre = nullptr);
    ~Scadenzario() override;

    /// Begins to read; a reading that is on its way is given up, and nothing more comes of it.
    void leggi(const RichiestaElenco& richiesta);
    /// Gives the reading up: it ends with the row that it is at. Nothing comes of it any more.
    void annulla();
    bool inCorso() const { return mInCorso; }

    /// Rows of the first batch, small so that it is there soon, and of the others.
    static constexpr std::size_t primoLotto = 64;
    static constexpr std::size_t lotto = 1024;

Q_SIGNALS:
    /// The next rows, in the order in which they are held; they may be moved from.
    void arrivate(std::vector<giacenza::desk::RigaCaso>& righe);
    /// All is read.
    void finito();
    /// The reading ended before its time. testo: in Italian; dettaglio: the driver's words.
    void fallito(const QString& testo, const QString& dettaglio);

private:
    using Annullata = std::shared_ptr<std::atomic<bool>>;
    void consegna(const Annullata& annullata, const std::function<void()>& azione);
    void leggiLaggiu(const RichiestaElenco& richiesta, const Annullata& annullata);

    Annullata mCorrente;
    bool mInCorso = false;
    Sfondo mSfondo; ///< last: it ends before what its work uses
};

} // namespace giacenza::desk
