#pragma once

#include "database/connessione.h"
#include "database/valori.h"

#include <QByteArrayView>

#include <span>
#include <vector>

namespace giacenza {

/// The rows of a statement, one of them current.
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

    bool aperto() const noexcept;
    /// Never fails.
    void chiudi() noexcept;

    /// Before the first row, behind the last; both for a result without rows.
    bool bof() const noexcept;
    bool eof() const noexcept;

    /// Moves; throw ErroreDatabase when reading fails, and (24000) primo() on soloAvanti once the first row
    /// was left. On an empty result they do nothing.
    void primo();
    void successivo();

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

private:
    class Interno;
    Interno& interno() const;
    std::unique_ptr<Interno> mInterno;
};

/// What ChiudiOggettiDB does with what it is given.
enum class Rilascio
{
    no,
    si
};
enum class Mantieni
{
    no,
    si
};

/// Closes a recordset and a connection; every error inside is ignored. Either pointer may be null.
///
/// Rilascio::si: both are closed and released (made as new). Rilascio::no: the recordset is closed; the
/// connection too, unless connessioneAperta is Mantieni::si.
void ChiudiOggettiDB(Recordset* recordset, Connessione* connessione, Rilascio rilascio,
                     Mantieni connessioneAperta) noexcept;

} // namespace giacenza
