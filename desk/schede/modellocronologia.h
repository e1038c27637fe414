#pragma once

#include "desk/registro/cronologia.h"

#include <QAbstractTableModel>

namespace giacenza::schede {

/// What happened to a case, the newest first.
class ModelloCronologia : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Colonna
    {
        quando,
        chi,
        che,
        quante
    };

    using QAbstractTableModel::QAbstractTableModel;

    /// eventi: the oldest first.
    void mostra(std::vector<registro::Evento> eventi);
    const registro::Evento& evento(int riga) const { return mEventi.at(static_cast<std::size_t>(riga)); }

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int ruolo) const override;
    QVariant headerData(int sezione, Qt::Orientation verso, int ruolo) const override;

private:
    std::vector<registro::Evento> mEventi;
};

} // namespace giacenza::schede
