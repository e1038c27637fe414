#include "desk/schede/modellocronologia.h"

#include <QFont>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza::schede {

void ModelloCronologia::mostra(std::vector<registro::Evento> eventi)
{
    beginResetModel();
    mEventi = std::move(eventi);
    std::reverse(mEventi.begin(), mEventi.end());
    endResetModel();
}

int ModelloCronologia::rowCount(const QModelIndex& padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(mEventi.size());
}

int ModelloCronologia::columnCount(const QModelIndex& padre) const
{
    return padre.isValid() ? 0 : quante;
}

QVariant ModelloCronologia::data(const QModelIndex& indice, int ruolo) const
{
    constexpr qsizetype massimoInTavola = 400; // the whole text stands below the table
    const registro::Evento& riga = evento(indice.row());
    if (ruolo == Qt::FontRole && riga.fonte == registro::Fonte::nota) {
        QFont corsivo;
        corsivo.setItalic(true);
        return corsivo;
    }
    if (ruolo == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    if (ruolo != Qt::DisplayRole)
        return {};
    switch (indice.column()) {
    case quando:
        return quandoEsteso(riga);
    case chi:
        return riga.chi;
    default:
        return riga.testo.isEmpty() ? riga.che
                                    : riga.che + u": "_s + riga.testo.left(massimoInTavola).simplified();
    }
}

QVariant ModelloCronologia::headerData(int sezione, Qt::Orientation verso, int ruolo) const
{
    static const QStringList titoli = {u"Quando"_s, u"Chi"_s, u"Che cosa"_s};
    if (verso != Qt::Horizontal)
        return {};
    if (ruolo == Qt::TextAlignmentRole)
        return QVariant(Qt::AlignLeft | Qt::AlignVCenter);
    return ruolo == Qt::DisplayRole ? QVariant(titoli.value(sezione)) : QVariant();
}

} // namespace giacenza::schede
