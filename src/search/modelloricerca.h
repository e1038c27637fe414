#pragma once

#include "database/recordset.h"
#include "search/colonnericerca.h"
#include "search/righelette.h"

#include <QAbstractTableModel>

namespace giacenza {

/// The rows of a statement for a grid, read page by page as the grid asks for more.
///
/// It has a connection of its own, open only while there are rows to read: from apri() to the last row, to
/// the first failure, or to chiudi(). Rows that were read stay.
class ModelloRicerca : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit ModelloRicerca(QObject* padre = nullptr);

    /// Opens the database, runs the statement and reads the first page, in place of what was there.
    ///
    /// Throws ErroreDatabase when connecting or running fails; the list is then
    /// empty, under the columns it had. Reading that fails later emits interrotta().
    void apri(const Accesso& accesso, const QString& istruzione);

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
    /// Reading stopped before the last row, once for each statement.
    void interrotta(const QString& motivo);

private:
    struct Colonna
    {
        QString nome;
        Aspetto aspetto;
    };

    void leggiColonne();
    QString leggiPagina();

    Connessione mConnessione;
    Recordset mRecordset;
    RigheLette mLette;
    std::vector<Colonna> mColonne;
    QString mIstruzione;
    int mMostrate = 0; // of mLette, what the grid knows of
    bool mCompleto = false;
};

} // namespace giacenza
