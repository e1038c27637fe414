#pragma once

#include "database/connessione.h"
#include "database/traccia.h"
#include "database/valori.h"

#include <sql.h>
#include <sqlext.h>

#include <QByteArray>

#include <span>
#include <vector>

/// The driver's handles. Everything that calls the driver is here, by the narrow calls, with text as UTF-8.
namespace giacenza::odbc {

/// Every return code of the driver passes here. Throws ErroreDatabase for a failure, with the SQLSTATE and
/// native code of the first diagnostic and the text of all of them, one to a line.
void verifica(SQLRETURN esito, SQLSMALLINT tipo, SQLHANDLE maniglia, const QString& istruzione = {});

/// The bytes of a text as the driver's calls take them; they do not change it.
inline SQLCHAR* testoOdbc(QByteArray& testo)
{
    return reinterpret_cast<SQLCHAR*>(testo.data());
}

/// An attribute that is a number travels in the pointer.
inline SQLPOINTER valoreAttributo(SQLULEN valore)
{
    return reinterpret_cast<SQLPOINTER>(valore);
}

class Istruzione;

/// A reading with rows still to come.
class Lettura
{
public:
    /// Reads the rest now; a failure is kept for whoever asks for the row.
    virtual void completa() noexcept = 0;

protected:
    Lettura() = default;
    Lettura(const Lettura&) = delete;
    Lettura& operator=(const Lettura&) = delete;
    virtual ~Lettura() = default;
};

/// A connection handle with what lives on it. The wrappers share it, so that each of them finds out that
/// another one closed it.
class Collegamento
{
public:
    /// Connects and prepares the session. Throws ErroreDatabase.
    Collegamento(const QString& stringa, const Limiti& limiti);
    Collegamento(const Collegamento&) = delete;
    Collegamento& operator=(const Collegamento&) = delete;
    ~Collegamento();

    /// False once closed, and once an answer told that the server is no longer there.
    bool aperto() const noexcept { return mManiglia && !mPerduto; }
    void chiudi() noexcept;

    Dialetto dialetto() const noexcept { return mDialetto; }
    const Limiti& limiti() const noexcept { return mLimiti; }
    SQLHDBC maniglia() const noexcept { return mManiglia; }

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
            traccia(evento, testo);
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
            throw;
        }
    }

    void aggiungiLettura(Lettura* lettura) { mLetture.push_back(lettura); }
    void togliLettura(Lettura* lettura) noexcept { std::erase(mLetture, lettura); }

private:
    friend class Istruzione;

    void connetti(const QString& stringa);
    void riconosciDialetto();
    void preparaSessione();
    void rifiutaNomiPerMaiuscole();
    void confermaAutomatica(bool accesa);
    void terminaTransazione(SQLSMALLINT come);
    void completaLetture() noexcept;
    void riconosciPerdita(const ErroreDatabase& errore) noexcept;
    void libera() noexcept;

    SQLHDBC mManiglia = SQL_NULL_HDBC;
    Limiti mLimiti;
    Dialetto mDialetto = Dialetto::altro;
    bool mPerduto = false;
    bool mInTransazione = false;
    std::vector<Istruzione*> mIstruzioni; // still alive; not owned
    std::vector<Lettura*> mLetture;       // not owned
};

/// A row that was read: the bytes of its values one after the other.
struct Riga
{
    struct Cella
    {
        qint32 inizio;
        qint32 lunghezza; // negative: null
    };
    QByteArray dati;
    std::vector<Cella> celle;
};

/// A statement handle. Its connection frees the handle when it closes; every later call then throws 08003.
class Istruzione
{
public:
    /// Throws ErroreDatabase (08003) when the connection is closed.
    explicit Istruzione(std::shared_ptr<Collegamento> collegamento);
    Istruzione(const Istruzione&) = delete;
    Istruzione& operator=(const Istruzione&) = delete;
    ~Istruzione();

    const std::shared_ptr<Collegamento>& collegamento() const noexcept { return mCollegamento; }

    void esegui(const QString& testo);
    /// Sends the text without running it.
    void prepara(const QString& testo);
    void eseguiPreparata(std::span<const Valore> parametri);

    /// Ends a statement whose rows, if it gives any, nobody wants: SQLite's driver runs one that gives rows
    /// ("pragma") only as far as they are read. Returns the rows touched, -1 when the driver does not say.
    qint64 finisci();

    std::vector<QString> nomiColonne();
    /// False behind the last row.
    bool leggi(Riga& riga, int colonne);

private:
    friend class Collegamento;

    SQLHSTMT viva() const;
    void controlla(SQLRETURN esito);
    void lega(std::span<const Valore> parametri);
    Riga::Cella leggiCella(SQLUSMALLINT colonna);
    void libera() noexcept;

    std::shared_ptr<Collegamento> mCollegamento;
    SQLHSTMT mManiglia = SQL_NULL_HSTMT;
    QString mTesto;
    std::vector<QByteArray> mValori; // bound; must outlive the execution
    std::vector<SQLLEN> mLunghezze;
    QByteArray mLetti; // the row being read: kept rows are copied to their size
};

} // namespace giacenza::odbc
