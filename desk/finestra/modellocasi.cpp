#include "desk/finestra/modellocasi.h"

#include "desk/finestra/aspettodesk.h"
#include "desk/finestra/colonnecasi.h"

#include <QFont>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza::desk {

ModelloCasi::ModelloCasi(QObject* padre) : QAbstractTableModel(padre), mColonna(colonnaFranchi) {}

int ModelloCasi::rowCount(const QModelIndex& padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(mMostrate.size());
}

int ModelloCasi::columnCount(const QModelIndex& padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(colonneCasi().size());
}

const RigaCaso& ModelloCasi::riga(int quale) const
{
    return mRighe[static_cast<std::size_t>(mMostrate[static_cast<std::size_t>(quale)])];
}

int ModelloCasi::rigaDi(const QString& nome) const
{
    for (int i = 0; i < rowCount(); ++i)
        if (nomeGiacenza(riga(i).caso.chiave) == nome)
            return i;
    return -1;
}

QVariant ModelloCasi::data(const QModelIndex& indice, int ruolo) const
{
    if (!indice.isValid() || indice.row() >= rowCount())
        return {};
    const RigaCaso& r = riga(indice.row());
    const ColonnaCasi& colonna = colonneCasi()[static_cast<std::size_t>(indice.column())];
    const bool incerto = indice.column() == colonnaEuro && !r.valutazione.centesimi;
    switch (ruolo) {
    case Qt::DisplayRole:
        return colonna.testo(r);
    case Qt::ToolTipRole:
        return indice.column() == colonnaEuro && r.valutazione.centesimi
                   ? u"Quota fissa %1, sosta %2"_s.arg(valuta(r.valutazione.fisso),
                                                       valuta(r.valutazione.sosta))
                   : colonna.testo(r);
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(colonna.allineamento);
    case Qt::ForegroundRole:
        if (indice.column() == colonnaStato)
            return colore(r.valutazione.stato);
        return incerto ? QVariant(coloreAllarme()) : QVariant();
    case Qt::FontRole:
        if (indice.column() == colonnaStato) {
            QFont grassetto;
            grassetto.setBold(true);
            return grassetto;
        }
        return {};
    default:
        return {};
    }
}

QVariant ModelloCasi::headerData(int sezione, Qt::Orientation verso, int ruolo) const
{
    if (verso != Qt::Horizontal)
        return {};
    const ColonnaCasi& colonna = colonneCasi()[static_cast<std::size_t>(sezione)];
    switch (ruolo) {
    case Qt::DisplayRole:
        return colonna.titolo;
    case Qt::ToolTipRole:
        return colonna.spiegazione;
    case Qt::TextAlignmentRole:
        return QVariant::fromValue(colonna.allineamento);
    default:
        return {};
    }
}

void ModelloCasi::filtra(std::size_t da)
{
    if (da == 0) {
        mMostrate.clear();
        mTotali = {};
    }
    const auto primaDiQueste = std::ssize(mMostrate);
    for (std::size_t i = da; i < mRighe.size(); ++i) {
        if (!passa(mRighe[i], mParole))
            continue;
        mMostrate.push_back(static_cast<int>(i));
        desk::aggiungi(mTotali, mRighe[i]);
    }
    const auto prima = colonneCasi()[static_cast<std::size_t>(mColonna)].prima;
    const auto in = [this](int posto) -> const RigaCaso& { return mRighe[static_cast<std::size_t>(posto)]; };
    const auto ordine = [&](int una, int altra) {
        return mOrdine == Qt::AscendingOrder ? prima(in(una), in(altra)) : prima(in(altra), in(una));
    };
    // Stable, and read in the order in which they are held: equals stay so.
    const auto queste = mMostrate.begin() + primaDiQueste;
    std::stable_sort(queste, mMostrate.end(), ordine);
    std::inplace_merge(mMostrate.begin(), queste, mMostrate.end(), ordine);
}

void ModelloCasi::sort(int colonna, Qt::SortOrder ordine)
{
    if (colonna < 0 || colonna >= columnCount() || (colonna == mColonna && ordine == mOrdine))
        return;
    beginResetModel();
    mColonna = colonna;
    mOrdine = ordine;
    filtra();
    endResetModel();
}

void ModelloCasi::sostituisci(std::vector<RigaCaso> righe)
{
    beginResetModel();
    mRighe = std::move(righe);
    filtra();
    endResetModel();
}

void ModelloCasi::aggiungi(std::vector<RigaCaso> righe)
{
    beginResetModel();
    const std::size_t da = mRighe.size();
    std::move(righe.begin(), righe.end(), std::back_inserter(mRighe));
    filtra(da);
    endResetModel();
}

void ModelloCasi::setFiltro(const QString& filtro)
{
    beginResetModel();
    mParole = paroleFiltro(filtro);
    filtra();
    endResetModel();
}

} // namespace giacenza::desk
