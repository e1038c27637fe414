#pragma once

#include "database/connessione.h"
#include "database/lettura.h"
#include "database/odbc.h"
#include "database/tentativi.h"

#include <vector>

namespace giacenza::odbc {

class Istruzione;

/// A connection handle with what lives on it. The wrappers share it, so that each of them finds out that
/// another one closed it.
class Collegamento
{
public:
    /// Connects and prepares the session. Throws ErroreDatabase.
    Collegamento(const Accesso& accesso, const Limiti& limiti);
    Collegamento(const Collegamento&) = delete;
    Collegamento& operator=(const Collegamento&) = delete;
    ~Collegamento();

    /// False once closed, and once an answer told that the server is no longer there.
    bool aperto() const noexcept { return mManiglia && !mPerduto; }
    void chiudi() noexcept;

    Dialetto dialetto() const noexcept { return mDialetto; }
    const Limiti& limiti() const noexcept { return mLimiti; }
    SQLHDBC maniglia() const noexcept { return mManiglia; }

    /// The name of the base that the connection works in, in UTF-8; empty where the driver knows none.
    QByteArray base() const;

    /// Asks the driver whether the server is still there; a connection that is not is lost from here on.
    bool viva() noexcept;

    bool inTransazione() const noexcept { return mInTransazione; }
    void inizia();
    void conferma();
    /// When even rolling back fails the connection is closed: turning auto-commit on again would commit.
    void annulla() noexcept;

    /// Tells the tracer, has open readings completed, then makes the call of the driver.
    template<class Chiamata>
    void esegui(EventoDati evento, const QString& testo, Chiamata chiamata)
    {
        sorveglia([&] {
            racconta(evento, testo);
            completaLetture();
            chiamata();
        });
    }

    /// Makes a call; its failure also tells whether the connection is lost.
    template<class Chiamata>
    auto sorveglia(Chiamata chiamata)
    {
        try {
            return chiamata();
        } catch (const ErroreDatabase& errore) {
            riconosciPerdita(errore);
            riconosciAttesaVana(errore);
            riconosciSolaLettura(errore);
            throw;
        }
    }

    void aggiungiIstruzione(Istruzione* istruzione) { mIstruzioni.push_back(istruzione); }
    void togliIstruzione(Istruzione* istruzione) noexcept { std::erase(mIstruzioni, istruzione); }
    void aggiungiLettura(Lettura* lettura) { mLetture.push_back(lettura); }
    void togliLettura(Lettura* lettura) noexcept { std::erase(mLetture, lettura); }

private:
    void connetti(const QString& stringa);
    void racconta(EventoDati evento, const QString& testo = {}) const;
    void confermaAutomatica(bool accesa);
    void terminaTransazione(SQLSMALLINT come);
    void completaLetture() noexcept;
    void riconosciPerdita(const ErroreDatabase& errore) noexcept;
    /// Throws what a file that does not open is for want of the right to write it.
    void riconosciSolaLettura(const ErroreDatabase& errore) const;
    /// Throws what a wait for the group that was broken off is: something that is tried again. The server
    /// tells it as it tells a lock that was waited for too long.
    void riconosciAttesaVana(const ErroreDatabase& errore) const;
    void libera() noexcept;

    SQLHDBC mManiglia = SQL_NULL_HDBC;
    Traccia mTraccia;
    Limiti mLimiti;
    QString mFile;             ///< of SQLite's
    bool mSolaLettura = false; ///< its file could not be written when it was opened
    Dialetto mDialetto = Dialetto::altro;
    bool mNelGruppo = false;
    bool mPerduto = false;
    bool mInTransazione = false;
    std::vector<Istruzione*> mIstruzioni; // still alive; not owned
    std::vector<Lettura*> mLetture;       // not owned
};

} // namespace giacenza::odbc
