#include "righetabella.h"

#include <limits>

namespace {

constexpr qsizetype pagina = 200;

} // namespace

RigheTabella::RigheTabella(const QString& percorsoDatabase, const QString& istruzione)
{
    mConnessione.apri(percorsoDatabase);
    mRecordset.apri(mConnessione, istruzione, giacenza::Recordset::Cursore::soloAvanti);
    for (int colonna = 0; colonna < mRecordset.colonne(); ++colonna)
        mColonne += mRecordset.nomeColonna(colonna);
    leggi(pagina);
}

int RigheTabella::rowCount(const QModelIndex& padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(mRighe.size());
}

int RigheTabella::columnCount(const QModelIndex& padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(mColonne.size());
}

QVariant RigheTabella::data(const QModelIndex& indice, int ruolo) const
{
    if (!indice.isValid() || (ruolo != Qt::DisplayRole && ruolo != Qt::ToolTipRole))
        return {};
    return mRighe[static_cast<std::size_t>(indice.row())].at(indice.column());
}

QVariant RigheTabella::headerData(int sezione, Qt::Orientation verso, int ruolo) const
{
    if (verso != Qt::Horizontal || ruolo != Qt::DisplayRole)
        return {};
    return mColonne.value(sezione);
}

bool RigheTabella::canFetchMore(const QModelIndex& padre) const
{
    return !padre.isValid() && !mRecordset.eof();
}

void RigheTabella::fetchMore(const QModelIndex& padre)
{
    if (!padre.isValid())
        leggi(pagina);
}

void RigheTabella::leggiTutto()
{
    leggi(std::numeric_limits<int>::max() - std::ssize(mRighe));
}

void RigheTabella::leggi(qsizetype quante)
{
    std::vector<QStringList> lette;
    QString motivo;
    try {
        while (!mRecordset.eof() && std::ssize(lette) < quante) {
            QStringList riga;
            for (int colonna = 0; colonna < mRecordset.colonne(); ++colonna)
                riga += mRecordset.valore(colonna).value_or(QString());
            lette.push_back(std::move(riga));
            mRecordset.successivo();
        }
    } catch (const giacenza::ErroreDatabase& errore) {
        mRecordset.chiudi();
        motivo = errore.testo();
    }
    if (!lette.empty()) {
        const int prima = rowCount();
        beginInsertRows({}, prima, prima + static_cast<int>(lette.size()) - 1);
        std::move(lette.begin(), lette.end(), std::back_inserter(mRighe));
        endInsertRows();
    }
    if (!motivo.isEmpty())
        Q_EMIT interrotta(motivo);
}
