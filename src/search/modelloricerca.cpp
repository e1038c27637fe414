#include "search/modelloricerca.h"

#include "base/spiegazioni.h"
#include "database/limiterighe.h"
#include "widgets/attesa.h"

#include <utility>

namespace giacenza {

namespace {

/// Dates and marks, all of one width, stand in the middle.
Qt::Alignment allineamento(Aspetto aspetto)
{
    return aspetto == Aspetto::testo ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter;
}

/// A row to be known again by. valore: of a column, as Recordset and RigheLette give it.
template<class DaiValore>
Ripresa::Riga rigaDi(int colonne, DaiValore valore)
{
    Ripresa::Riga riga;
    riga.reserve(static_cast<std::size_t>(colonne));
    for (int colonna = 0; colonna < colonne; ++colonna) {
        const std::optional<QByteArrayView> byte = valore(colonna);
        riga.push_back(byte ? std::optional(byte->toByteArray()) : std::nullopt);
    }
    return riga;
}

} // namespace

ModelloRicerca::ModelloRicerca(QObject* padre) : QAbstractTableModel(padre) {}

void ModelloRicerca::apri(const Accesso& accesso, const QString& istruzione,
                          const std::optional<PostiScelta>& chiave)
{
    const Attesa attesa;
    svuota(false);
    Guasto guasto;
    bool unaPagina = false;
    try {
        mConnessione.apri(accesso);
        unaPagina = chiave && mConnessione.dialetto() == Dialetto::mariadb;
        std::optional<LimiteRighe> limite;
        if (unaPagina) // and one row more, which tells whether there are others
            limite.emplace(mConnessione, RigheLette::righePagina + 1);
        mRecordset.apri(mConnessione, istruzione, Recordset::Cursore::soloAvanti);
        mAccesso = accesso;
        mIstruzione = istruzione;
        guasto = leggiPrima();
    } catch (const ErroreDatabase&) {
        chiudi();
        throw;
    }
    if (unaPagina && !mCompleto && !guasto) {
        chiudi();
        mDaRileggere = chiave;
    }
    racconta(guasto);
}

void ModelloRicerca::racconta(const Guasto& guasto)
{
    if (guasto)
        Q_EMIT interrotta(spiega(*guasto), guasto->testo());
}

void ModelloRicerca::chiudi() noexcept
{
    ChiudiOggettiDB(&mRecordset, &mConnessione, Rilascio::si, Mantieni::no);
    mDaRileggere.reset();
    mRipresa.reset();
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

/// Columns and first page, which the grid learns of together. Returns as leggiPagina().
ModelloRicerca::Guasto ModelloRicerca::leggiPrima()
{
    beginResetModel();
    leggiColonne();
    Guasto guasto = leggiPagina();
    mMostrate = mLette.righe();
    endResetModel();
    return guasto;
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
/// Returns what ended the reading too early, nothing when nothing did.
ModelloRicerca::Guasto ModelloRicerca::leggiPagina()
{
    try {
        const int piena = mLette.righe() + RigheLette::righePagina;
        for (; mLette.righe() < piena && !mRecordset.eof(); mRecordset.successivo())
            aggiungiRiga();
    } catch (const ErroreDatabase& errore) {
        chiudi();
        return errore;
    }
    mCompleto = mRecordset.eof();
    if (mCompleto)
        chiudi();
    return {};
}

void ModelloRicerca::aggiungiRiga()
{
    if (!mRipresa) {
        mLette.aggiungiRiga();
        for (int colonna = 0; colonna < columnCount(); ++colonna)
            mLette.aggiungiValore(mRecordset.utf8(colonna));
        return;
    }
    const std::vector<Ripresa::Riga> nuove =
        mRipresa->segue(rigaDi(columnCount(), [this](int colonna) { return mRecordset.utf8(colonna); }));
    for (const Ripresa::Riga& nuova : nuove) {
        mLette.aggiungiRiga();
        for (const auto& valore : nuova)
            mLette.aggiungiValore(valore);
    }
    if (mRipresa->finita())
        mRipresa.reset();
}

/// Runs the statement whole. Throws ErroreDatabase.
void ModelloRicerca::rileggi()
{
    Ripresa ripresa(*std::exchange(mDaRileggere, std::nullopt));
    for (int riga = 0; riga < mLette.righe(); ++riga)
        ripresa.mostrata(rigaDi(columnCount(), [&](int colonna) { return mLette.valore(riga, colonna); }));
    mConnessione.apri(mAccesso);
    mRecordset.apri(mConnessione, mIstruzione, Recordset::Cursore::soloAvanti);
    mRipresa = std::move(ripresa);
}

/// As leggiPagina(), where the reading may first have to begin again.
ModelloRicerca::Guasto ModelloRicerca::leggiAltra()
{
    const Attesa attesa;
    try {
        if (mDaRileggere)
            rileggi();
    } catch (const ErroreDatabase& errore) {
        chiudi();
        return errore;
    }
    return leggiPagina();
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
    return !padre.isValid() && (mDaRileggere || mRecordset.aperto());
}

void ModelloRicerca::fetchMore(const QModelIndex& padre)
{
    if (!canFetchMore(padre))
        return;
    const Guasto guasto = leggiAltra();
    if (mLette.righe() > mMostrate) {
        beginInsertRows({}, mMostrate, mLette.righe() - 1);
        mMostrate = mLette.righe();
        endInsertRows();
    }
    Q_EMIT continuata();
    racconta(guasto);
}

const QString& ModelloRicerca::nomeColonna(int colonna) const
{
    return mColonne[static_cast<std::size_t>(colonna)].nome;
}

} // namespace giacenza
