#pragma once

#include "desk/documenti/conto.h"

#include <QAbstractTableModel>

namespace giacenza::schede {

/// The days of a charge sheet.
class ModelloConto : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Colonna
    {
        giorno,
        numero,
        genere,
        delGiorno,
        sosta,
        quante
    };

    using QAbstractTableModel::QAbstractTableModel;

    void mostra(std::vector<documenti::RigaConto> righe);

    int rowCount(const QModelIndex& padre = {}) const override;
    int columnCount(const QModelIndex& padre = {}) const override;
    QVariant data(const QModelIndex& indice, int ruolo) const override;
    QVariant headerData(int sezione, Qt::Orientation verso, int ruolo) const override;

private:
    std::vector<documenti::RigaConto> mRighe;
};

} // namespace giacenza::schede
