#pragma once

#include "database/odbc.h"
#include "database/valori.h"

#include <memory>
#include <span>
#include <vector>

namespace giacenza::odbc {

class Collegamento;

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

/// A column of a result as the driver describes it.
struct Colonna
{
    QString nome;
    qint64 larghezza = 0; ///< the most characters that it holds; 0 where the driver does not say
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
    /// Runs the driver's own catalog of tables and views.
    void elencaTabelle();
    /// Sends the text without running it.
    void prepara(const QString& testo);
    void eseguiPreparata(std::span<const Valore> parametri);
    /// Both for one use, which on MariaDB takes one round trip instead of two. A "?" of the text is always
    /// the place of a value, also within quotes.
    void eseguiConValori(const QString& testo, std::span<const Valore> parametri);

    /// Ends a statement whose rows, if it gives any, nobody wants: SQLite's driver runs one that gives rows
    /// ("pragma") only as far as they are read. Returns the rows touched, -1 when the driver does not say.
    qint64 finisci();

    std::vector<Colonna> colonne();
    std::vector<QString> nomiColonne();
    /// False behind the last row.
    bool leggi(Riga& riga, int colonne);

    /// For its connection, which closes: frees the handle.
    void libera() noexcept;

private:
    SQLHSTMT viva() const;
    void controlla(SQLRETURN esito);
    void invia(const QString& testo);
    void contaParametri(qsizetype segni, std::span<const Valore> parametri) const;
    void lega(std::span<const Valore> parametri);
    Riga::Cella leggiCella(SQLUSMALLINT colonna);
    void legaColonne(int colonne);
    Riga::Cella cellaLegata(int colonna);

    std::shared_ptr<Collegamento> mCollegamento;
    SQLHSTMT mManiglia = SQL_NULL_HSTMT;
    QString mTesto;
    std::vector<QByteArray> mValori; // bound; must outlive the execution
    std::vector<SQLLEN> mLunghezze;
    QByteArray mLetti;         // the row being read: kept rows are copied to their size
    int mRighe = 0;            // that were read
    std::vector<char> mLegate; // what the driver fills by itself from the second row on
    std::vector<SQLLEN> mLegateLunghe;
};

} // namespace giacenza::odbc
