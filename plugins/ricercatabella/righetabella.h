#pragma once

#include "database/recordset.h"

#include <QAbstractTableModel>
#include <QStringList>

#include <vector>

/// The rows of a statement for a view, under the statement's own column names. They are read a page at a time
/// as the view comes to the end of those that are there.
class RigheTabella : public QAbstractTableModel
{
    Q_OBJECT

public:
    /// Connects and runs the statement. Throws giacenza::ErroreDatabase.
    RigheTabella(const QString& percorsoDatabase, const QString& istruzione);

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int ruolo = Qt::DisplayRole) const override;
    QVariant headerData(int sezione, Qt::Orientation verso, int ruolo = Qt::DisplayRole) const override;
    bool canFetchMore(const QModelIndex& padre) const override;
    void fetchMore(const QModelIndex& padre) override;

    /// All values of a row, null as empty.
    QStringList valori(int riga) const { return mRighe.at(static_cast<std::size_t>(riga)); }

    /// Reads what is left.
    void leggiTutto();

Q_SIGNALS:
    /// Reading ended before the last row. motivo: the driver's words.
    void interrotta(const QString& motivo);

private:
    void leggi(qsizetype quante);

    giacenza::Connessione mConnessione;
    giacenza::Recordset mRecordset; // behind the connection: it goes first
    QStringList mColonne;
    std::vector<QStringList> mRighe;
};
