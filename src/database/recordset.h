#pragma once

#include "database/connessione.h"
#include "database/valori.h"

#include <QByteArrayView>

#include <span>
#include <vector>

namespace giacenza {

/// The rows of a statement, one of them current; or a table opened to add a row.
///
/// With Cursore::chiave the rows that were read are kept, so that the current row may go back to the first;
/// reading is on demand: apri() fetches the first row and no more. With Cursore::soloAvanti nothing is kept
/// but the current row, as long as the connection does nothing else: a statement or the end of a transaction
/// on it first has the rest read into memory where the driver would lose it, so a long reading is given a
/// connection of its own. Columns are found by name without case; of two columns with one name the first
/// wins.
class Recordset
{
public:
    enum class Cursore
    {
        chiave,
        soloAvanti
    };

    Recordset();
    Recordset(Recordset&&) noexcept;
    Recordset& operator=(Recordset&&) noexcept;
    ~Recordset();

    /// Runs a select and makes its first row current. parametri: bound to the "?" of the text, if any.
    /// Throws ErroreDatabase.
    void apri(Connessione& connessione, const QString& istruzione, Cursore cursore = Cursore::chiave,
              std::span<const Valore> parametri = {});

    /// Opens a table to add a row ("select * from " + tabella): the columns are described, no row is read and
    /// nothing is executed. bof() and eof() are both true. Throws ErroreDatabase.
    void apriTabella(Connessione& connessione, const QString& tabella);

    bool aperto() const noexcept;
    /// Never fails.
    void chiudi() noexcept;

    /// Before the first row, behind the last; both for a result without rows.
    bool bof() const noexcept;
    bool eof() const noexcept;

    /// Moves; throw ErroreDatabase when reading fails, and (24000) primo() and ultimo() on soloAvanti once
    /// the first row was left. On an empty result they do nothing.
    void primo();
    void successivo();
    void ultimo();

    int colonne() const noexcept;
    QString nomeColonna(int colonna) const;
    /// -1 when there is none.
    int indice(const QString& nome) const;

    /// A value of the current row; throw ErroreDatabase: 02000 without a current row, 42S22 for an unknown
    /// column.
    Valore valore(int colonna) const;
    Valore valore(const QString& nome) const;

    /// The same as UTF-8 bytes, valid until the next move; nothing for null. For grids, which keep bytes.
    std::optional<QByteArrayView> utf8(int colonna) const;

    /// Starts a new row; its columns take their table defaults until set.
    void aggiungi();
    /// Throws ErroreDatabase 42S22 for an unknown column.
    void imposta(const QString& colonna, const Valore& valore);
    /// Writes the new row, only with the columns that were set, their values bound. Throws ErroreDatabase.
    void aggiorna();

private:
    class Interno;
    Interno& interno() const;
    std::unique_ptr<Interno> mInterno;
};

/// A statement prepared once and executed many times with bound values.
class Comando
{
public:
    /// Throws ErroreDatabase.
    Comando(Connessione& connessione, const QString& istruzione);
    Comando(Comando&&) noexcept;
    Comando& operator=(Comando&&) noexcept;
    ~Comando();

    /// Runs it with one value for each "?". Throws ErroreDatabase. Returns the rows touched, -1 when unknown.
    qint64 esegui(std::span<const Valore> parametri);

private:
    class Interno;
    std::unique_ptr<Interno> mInterno;
};

/// Closes, and with rilascia also releases, a recordset and a connection; every error inside is ignored.
///
/// rilascia true: both are closed and released (made as new). rilascia false: the recordset is closed; the
/// connection too, unless mantieniConnessione. Either pointer may be null.
void ChiudiOggettiDB(Recordset* recordset, Connessione* connessione, bool rilascia,
                     bool mantieniConnessione) noexcept;

} // namespace giacenza
