#pragma once

#include "desk/dati/regole.h"

#include <QAbstractTableModel>

#include <vector>

namespace giacenza::desk {

/// The open cases as rows: those that pass the filter, in the order asked for. Every change is a reset: who
/// shows them keeps his place by the keys of the rows.
class ModelloCasi : public QAbstractTableModel
{
    Q_OBJECT

public:
    explicit ModelloCasi(QObject* padre = nullptr);

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int ruolo = Qt::DisplayRole) const override;
    QVariant headerData(int sezione, Qt::Orientation verso, int ruolo = Qt::DisplayRole) const override;
    void sort(int colonna, Qt::SortOrder ordine) override;

    /// Puts the cases in the place of those that are there; adds to them.
    void sostituisci(std::vector<RigaCaso> righe);
    void aggiungi(std::vector<RigaCaso> righe);
    void setFiltro(const QString& filtro);

    /// A row that is shown.
    const RigaCaso& riga(int quale) const;
    /// The row that shows a case now; -1: none.
    int rigaDi(const QString& nomeGiacenza) const;

    /// Of the rows that are shown, and how many there are in all.
    const Totali& totali() const { return mTotali; }
    std::size_t tutte() const { return mRighe.size(); }

private:
    /// Filters the cases from a position on, and puts those that pass in their places among the others.
    void filtra(std::size_t da = 0);

    std::vector<RigaCaso> mRighe;
    std::vector<int> mMostrate; ///< positions in mRighe
    QStringList mParole;
    int mColonna;
    Qt::SortOrder mOrdine = Qt::AscendingOrder;
    Totali mTotali;
};

} // namespace giacenza::desk
