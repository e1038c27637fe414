#include "search/modelloricerca.h"

#include "widgets/attesa.h"

namespace giacenza {

namespace {

/// Dates and marks, all of one width, stand in the middle.
Qt::Alignment allineamento(Aspetto aspetto)
{
    return aspetto == Aspetto::testo ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter;
}

} // namespace

ModelloRicerca::ModelloRicerca(QObject* padre) : QAbstractTableModel(padre) {}

void ModelloRicerca::apri(const Accesso& accesso, const QString& istruzione)
{
    const Attesa attesa;
    svuota(false);
    try {
        mConnessione.apri(accesso);
        mRecordset.apri(mConnessione, istruzione, Recordset::Cursore::soloAvanti);
    } catch (const ErroreDatabase&) {
        chiudi();
        throw;
    }
    beginResetModel();
    mIstruzione = istruzione;
    leggiColonne();
    const QString motivo = leggiPagina();
    mMostrate = mLette.righe();
    endResetModel();
    if (!motivo.isEmpty())
        Q_EMIT interrotta(motivo);
}

void ModelloRicerca::chiudi() noexcept
{
    ChiudiOggettiDB(&mRecordset, &mConnessione, Rilascio::si, Mantieni::no);
}

void ModelloRicerca::svuota(bool colonneAnche)
{
    chiudi();
    beginResetModel();
    mLette.svuota();
    mMostrate = 0;
    mCompleto = false;
    mIstruzione.clear();
    if (colonneAnche)
        mColonne.clear();
    endResetModel();
}

void ModelloRicerca::leggiColonne()
{
    mColonne.clear();
    for (int colonna = 0; colonna < mRecordset.colonne(); ++colonna) {
        const QString nome = mRecordset.nomeColonna(colonna);
        mColonne.push_back({nome, aspetto(nome)});
    }
}

/// The recordset stands on the first row that is not in mLette, so that the end is known with the last row.
/// Returns why the reading ended too early, empty when it did not.
QString ModelloRicerca::leggiPagina()
{
    try {
        for (int lette = 0; lette < RigheLette::righePagina && !mRecordset.eof(); ++lette) {
            mLette.aggiungiRiga();
            for (int colonna = 0; colonna < columnCount(); ++colonna)
                mLette.aggiungiValore(mRecordset.utf8(colonna));
            mRecordset.successivo();
        }
    } catch (const ErroreDatabase& errore) {
        chiudi();
        return errore.testo();
    }
    mCompleto = mRecordset.eof();
    if (mCompleto)
        chiudi();
    return {};
}

int ModelloRicerca::rowCount(const QModelIndex& padre) const
{
    return padre.isValid() ? 0 : mMostrate;
}

int ModelloRicerca::columnCount(const QModelIndex& padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(mColonne.size());
}

QVariant ModelloRicerca::data(const QModelIndex& indice, int ruolo) const
{
    if (!checkIndex(indice, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Aspetto aspetto = mColonne[static_cast<std::size_t>(indice.column())].aspetto;
    if (ruolo == Qt::TextAlignmentRole)
        return QVariant::fromValue(allineamento(aspetto));
    if (ruolo != Qt::DisplayRole)
        return {};
    const auto byte = mLette.valore(indice.row(), indice.column());
    return mostra(aspetto, byte ? Valore(QString::fromUtf8(*byte)) : std::nullopt);
}

QVariant ModelloRicerca::headerData(int sezione, Qt::Orientation verso, int ruolo) const
{
    if (verso == Qt::Horizontal && sezione >= 0 && sezione < columnCount()) {
        const Colonna& colonna = mColonne[static_cast<std::size_t>(sezione)];
        if (ruolo == Qt::DisplayRole)
            return didascalia(colonna.nome);
        if (ruolo == Qt::TextAlignmentRole)
            return QVariant::fromValue(allineamento(colonna.aspetto));
    }
    return QAbstractTableModel::headerData(sezione, verso, ruolo);
}

bool ModelloRicerca::canFetchMore(const QModelIndex& padre) const
{
    return !padre.isValid() && mRecordset.aperto();
}

void ModelloRicerca::fetchMore(const QModelIndex& padre)
{
    if (!canFetchMore(padre))
        return;
    QString motivo;
    {
        const Attesa attesa;
        motivo = leggiPagina();
    }
    if (mLette.righe() > mMostrate) {
        beginInsertRows({}, mMostrate, mLette.righe() - 1);
        mMostrate = mLette.righe();
        endInsertRows();
    }
    if (!motivo.isEmpty())
        Q_EMIT interrotta(motivo);
}

const QString& ModelloRicerca::nomeColonna(int colonna) const
{
    return mColonne[static_cast<std::size_t>(colonna)].nome;
}

} // namespace giacenza
