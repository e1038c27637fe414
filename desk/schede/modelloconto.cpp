#include "desk/schede/modelloconto.h"

using namespace Qt::StringLiterals;

namespace giacenza::schede {

void ModelloConto::mostra(std::vector<documenti::RigaConto> righe)
{
    beginResetModel();
    mRighe = std::move(righe);
    endResetModel();
}

int ModelloConto::rowCount(const QModelIndex& padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(mRighe.size());
}

int ModelloConto::columnCount(const QModelIndex& padre) const
{
    return padre.isValid() ? 0 : quante;
}

QVariant ModelloConto::data(const QModelIndex& indice, int ruolo) const
{
    if (ruolo == Qt::TextAlignmentRole) {
        const bool testo = indice.column() == giorno || indice.column() == genere;
        return QVariant((testo ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
    }
    if (ruolo != Qt::DisplayRole)
        return {};
    const documenti::RigaConto& riga = mRighe.at(static_cast<std::size_t>(indice.row()));
    switch (indice.column()) {
    case giorno:
        return dataBreve(riga.giorno);
    case numero:
        return QString::number(riga.giorni);
    case genere:
        return parole(riga.genere);
    case delGiorno:
        return valuta(riga.delGiorno);
    default:
        return valuta(riga.sosta);
    }
}

QVariant ModelloConto::headerData(int sezione, Qt::Orientation verso, int ruolo) const
{
    if (verso != Qt::Horizontal)
        return {};
    if (ruolo == Qt::TextAlignmentRole)
        return data(index(0, sezione), ruolo);
    static const QStringList titoli = {u"Giorno"_s, u"N."_s, u"Che cos'è"_s, u"Del giorno"_s,
                                       u"Sosta fin lì"_s};
    return ruolo == Qt::DisplayRole ? QVariant(titoli.value(sezione)) : QVariant();
}

} // namespace giacenza::schede
