#pragma once

#include "database/recordset.h"
#include "search/colonnericerca.h"
#include "search/righelette.h"
#include "search/ripresa.h"

#include <QAbstractTableModel>

namespace giacenza {

/// The rows of a statement for a grid, read page by page as the grid asks for more.
///
/// It has a connection of its own, open only while there are rows to read: from apri() to the last row, to
/// the first failure, or to chiudi(). Rows that were read stay.
///
/// MariaDB's driver brings a whole result before its first row. There a list in order is first run for one
/// page only, and its connection closed; when the grid asks for more, the same statement is run whole, once,
/// on a new one, and the list goes on behind the rows that are there.
class ModelloRicerca : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit ModelloRicerca(QObject* padre = nullptr);

    /// Opens the database, runs the statement and reads the first page, in place of what was there.
    ///
    /// chiave: for a statement with an order, where its rows have their key;
    /// nothing for one without an order, which is never run for a part. Throws ErroreDatabase when connecting
    /// or running fails; the list is then empty, under the columns it had. Reading that fails later emits
    /// interrotta().
    void apri(const Accesso& accesso, const QString& istruzione,
              const std::optional<PostiScelta>& chiave = {});

    /// Ends the reading; the rows stay.
    void chiudi() noexcept;

    /// Ends the reading and forgets rows, columns and statement. colonneAnche false: the columns stay.
    void svuota(bool colonneAnche = true);

    /// The statement whose rows these are, empty without one.
    const QString& istruzione() const noexcept { return mIstruzione; }

    /// Every row of the statement was read.
    bool completo() const noexcept { return mCompleto; }

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int ruolo = Qt::DisplayRole) const override;
    QVariant headerData(int sezione, Qt::Orientation verso, int ruolo = Qt::DisplayRole) const override;
    bool canFetchMore(const QModelIndex& padre) const override;
    void fetchMore(const QModelIndex& padre) override;

    /// A column's name in the statement.
    const QString& nomeColonna(int colonna) const;

Q_SIGNALS:
    /// More was asked for and read, or nothing more was there.
    void continuata();

    /// Reading stopped before the last row, once for each statement. motivo: why, in Italian; parole: in the
    /// driver's words.
    void interrotta(const QString& motivo, const QString& parole);

private:
    struct Colonna
    {
        QString nome;
        Aspetto aspetto;
    };

    using Guasto = std::optional<ErroreDatabase>;

    Guasto leggiPrima();
    void leggiColonne();
    Guasto leggiAltra();
    Guasto leggiPagina();
    void racconta(const Guasto& guasto);
    void aggiungiRiga();
    void rileggi();

    Connessione mConnessione;
    Recordset mRecordset;
    RigheLette mLette;
    std::vector<Colonna> mColonne;
    Accesso mAccesso{QString()};
    QString mIstruzione;
    std::optional<PostiScelta> mDaRileggere; // only a page was run: where the rest has its key
    std::optional<Ripresa> mRipresa;         // the statement was run again: until its first rows have passed
    int mMostrate = 0;                       // of mLette, what the grid knows of
    bool mCompleto = false;
};

} // namespace giacenza
