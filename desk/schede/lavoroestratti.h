#pragma once

#include "desk/dati/sfondo.h"
#include "desk/documenti/serieestratti.h"

#include <atomic>
#include <memory>

namespace giacenza::schede {

/// What statements are wanted.
struct OrdineEstratti
{
    Accesso accesso;
    std::vector<documenti::ClienteAperto> clienti;
    documenti::RichiestaEstratto periodo; ///< its customer is not looked at
    documenti::Forme forme;
    documenti::Carta carta;
    QString cartella;
};

/// Makes the statements in a thread of its own, on a connection of its own, and tells of each. Used, and
/// heard, in one thread.
class LavoroEstratti : public QObject
{
    Q_OBJECT

public:
    explicit LavoroEstratti(QObject* padre = nullptr) : QObject(padre) {}
    /// Waits for the statement that is at work, which is kept whole; the next is not begun.
    ~LavoroEstratti() override;

    /// Begins; only while not inCorso().
    void comincia(const OrdineEstratti& ordine);
    /// Ends after the statement that is at work.
    void ferma();
    bool inCorso() const { return mInCorso; }

Q_SIGNALS:
    /// This customer's turn has come.
    void cominciato(const giacenza::documenti::ClienteAperto& cliente);
    void fatto(const giacenza::documenti::EsitoEstratto& esito);
    /// No more comes. guasto: why there was nothing to begin with, in Italian; else empty.
    void finito(const QString& guasto);

private:
    void lavora(const OrdineEstratti& ordine);
    static QString prova(const std::function<void()>& azione);
    void consegna(const std::function<void()>& azione);

    std::atomic<bool> mFermata = false;
    bool mInCorso = false;
    desk::Sfondo mSfondo; ///< last: it ends before what its work uses
};

} // namespace giacenza::schede
