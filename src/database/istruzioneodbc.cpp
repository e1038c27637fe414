#include "database/istruzioneodbc.h"

#include "database/collegamento.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace giacenza::odbc {

namespace {

/// Bytes of a bound value, its terminator among them.
constexpr SQLLEN larghezzaLegata = 256;

} // namespace

Istruzione::Istruzione(std::shared_ptr<Collegamento> collegamento) : mCollegamento(std::move(collegamento))
{
    if (!mCollegamento->aperto())
        throw ErroreDatabase(u"08003"_s, 0, u"La connessione è chiusa."_s);
    verifica(SQLAllocHandle(SQL_HANDLE_STMT, mCollegamento->maniglia(), &mManiglia), SQL_HANDLE_DBC,
             mCollegamento->maniglia());
    try {
        // The MariaDB driver answers "changed to no time-out", which is a success: there the session has its
        // own.
        controlla(SQLSetStmtAttr(mManiglia, SQL_ATTR_QUERY_TIMEOUT,
                                 valoreAttributo(static_cast<SQLULEN>(mCollegamento->limiti().comando)), 0));
        mCollegamento->aggiungiIstruzione(this); // last: it must never know of one that was not made
    } catch (...) {
        libera();
        throw;
    }
}

Istruzione::~Istruzione()
{
    if (!mManiglia)
        return;
    mCollegamento->togliIstruzione(this);
    libera();
}

void Istruzione::libera() noexcept
{
    SQLFreeHandle(SQL_HANDLE_STMT, mManiglia);
    mManiglia = SQL_NULL_HSTMT;
}

SQLHSTMT Istruzione::viva() const
{
    if (!mManiglia || !mCollegamento->aperto())
        throw ErroreDatabase(u"08003"_s, 0, u"La connessione è chiusa."_s, mTesto);
    return mManiglia;
}

void Istruzione::controlla(SQLRETURN esito)
{
    verifica(esito, SQL_HANDLE_STMT, mManiglia, mTesto);
}

void Istruzione::esegui(const QString& testo)
{
    mTesto = testo;
    viva();
    mCollegamento->esegui(EventoDati::istruzione, testo, [&] { invia(testo); });
}

void Istruzione::eseguiConValori(const QString& testo, std::span<const Valore> parametri)
{
    mTesto = testo;
    viva();
    mCollegamento->esegui(EventoDati::istruzione, testo, [&] {
        contaParametri(testo.count(u'?'), parametri);
        lega(parametri);
        invia(testo);
    });
}

void Istruzione::elencaTabelle()
{
    const SQLHSTMT maniglia = viva();
    // Without a name MariaDB's driver lists the tables of every base that the user sees.
    QByteArray base = mCollegamento->base();
    SQLCHAR* catalogo = base.isEmpty() ? nullptr : testoOdbc(base);
    mCollegamento->sorveglia([&] {
        controlla(SQLTables(maniglia, catalogo, static_cast<SQLSMALLINT>(base.size()), nullptr, 0, nullptr, 0,
                            nullptr, 0));
    });
}

void Istruzione::invia(const QString& testo)
{
    QByteArray utf8 = testo.toUtf8();
    const SQLRETURN esito = SQLExecDirect(mManiglia, testoOdbc(utf8), static_cast<SQLINTEGER>(utf8.size()));
    if (esito != SQL_NO_DATA) // an update that touched no row
        controlla(esito);
}

void Istruzione::prepara(const QString& testo)
{
    mTesto = testo;
    const SQLHSTMT maniglia = viva();
    mCollegamento->sorveglia([&] {
        QByteArray utf8 = testo.toUtf8();
        controlla(SQLPrepare(maniglia, testoOdbc(utf8), static_cast<SQLINTEGER>(utf8.size())));
    });
}

void Istruzione::contaParametri(qsizetype segni, std::span<const Valore> parametri) const
{
    // The drivers would take null for what is missing.
    if (segni != std::ssize(parametri))
        throw ErroreDatabase(
            u"07002"_s, 0,
            u"L'istruzione aspetta %1 valori e ne riceve %2."_s.arg(segni).arg(parametri.size()), mTesto);
}

void Istruzione::lega(std::span<const Valore> parametri)
{
    const auto quanti = parametri.size();
    mValori.resize(quanti);
    mLunghezze.resize(quanti);
    controlla(SQLFreeStmt(mManiglia, SQL_RESET_PARAMS));
    for (std::size_t i = 0; i < quanti; ++i) {
        if (parametri[i] && !parametri[i]->isValidUtf16()) // it would be stored as "?"
            throw ErroreDatabase(u"22021"_s, 0, u"Il testo contiene mezzo carattere."_s, mTesto);
        mValori[i] = parametri[i] ? parametri[i]->toUtf8() : QByteArray();
        if (mValori[i].contains('\0')) // SQLite's driver would store it and give it back cut
            throw ErroreDatabase(u"22021"_s, 0, u"Il testo contiene un carattere nullo."_s, mTesto);
        // The length is given: the drivers would store the terminator of a text that they have to measure.
        mLunghezze[i] = parametri[i] ? static_cast<SQLLEN>(mValori[i].size()) : SQL_NULL_DATA;
        const auto larghezza = static_cast<SQLULEN>(std::max<qsizetype>(mValori[i].size(), 1));
        controlla(SQLBindParameter(mManiglia, static_cast<SQLUSMALLINT>(i + 1), SQL_PARAM_INPUT, SQL_C_CHAR,
                                   SQL_VARCHAR, larghezza, 0, mValori[i].data(),
                                   static_cast<SQLLEN>(mValori[i].size()), &mLunghezze[i]));
    }
}

void Istruzione::eseguiPreparata(std::span<const Valore> parametri)
{
    const SQLHSTMT maniglia = viva();
    mCollegamento->esegui(EventoDati::istruzione, mTesto, [&] {
        SQLSMALLINT segni = 0;
        controlla(SQLNumParams(mManiglia, &segni));
        contaParametri(segni, parametri);
        lega(parametri);
        const SQLRETURN esito = SQLExecute(maniglia);
        if (esito != SQL_NO_DATA)
            controlla(esito);
    });
}

qint64 Istruzione::finisci()
{
    const SQLHSTMT maniglia = viva();
    SQLLEN righe = -1;
    controlla(SQLRowCount(maniglia, &righe));
    SQLSMALLINT colonne = 0;
    controlla(SQLNumResultCols(maniglia, &colonne));
    if (colonne > 0) {
        for (Riga riga; leggi(riga, 0);) {
        }
        controlla(SQLFreeStmt(maniglia, SQL_CLOSE));
    }
    return righe;
}

std::vector<Colonna> Istruzione::colonne()
{
    constexpr qsizetype byteDiUnNome =
        1025; // 256 characters, the longest alias of MariaDB; drivers give fewer
    const SQLHSTMT maniglia = viva();
    SQLSMALLINT quante = 0;
    controlla(SQLNumResultCols(maniglia, &quante));
    std::vector<Colonna> descritte;
    descritte.reserve(static_cast<std::size_t>(quante));
    QByteArray nome(byteDiUnNome, '\0');
    for (SQLSMALLINT colonna = 1; colonna <= quante; ++colonna) {
        SQLSMALLINT lunghezza = 0;
        SQLSMALLINT tipo = 0;
        SQLULEN larghezza = 0;
        SQLSMALLINT cifre = 0;
        SQLSMALLINT annullabile = 0;
        controlla(SQLDescribeCol(maniglia, static_cast<SQLUSMALLINT>(colonna), testoOdbc(nome),
                                 static_cast<SQLSMALLINT>(nome.size()), &lunghezza, &tipo, &larghezza, &cifre,
                                 &annullabile));
        descritte.push_back(
            {QString::fromUtf8(nome.constData(), std::min<qsizetype>(lunghezza, nome.size() - 1)),
             static_cast<qint64>(larghezza)});
    }
    return descritte;
}

std::vector<QString> Istruzione::nomiColonne()
{
    std::vector<QString> nomi;
    for (Colonna& colonna : colonne())
        nomi.push_back(std::move(colonna.nome));
    return nomi;
}

bool Istruzione::leggi(Riga& riga, int colonne)
{
    const SQLHSTMT maniglia = viva();
    riga.celle.clear();
    riga.celle.reserve(static_cast<std::size_t>(colonne));
    mLetti.resize(0);
    const bool letta = mCollegamento->sorveglia([&] {
        // Binding pays from the second row on: the rest then comes with one call for each row.
        if (++mRighe == 2)
            legaColonne(colonne);
        const SQLRETURN esito = SQLFetch(maniglia);
        if (esito == SQL_NO_DATA)
            return false;
        controlla(esito);
        for (int colonna = 1; colonna <= colonne; ++colonna)
            riga.celle.push_back(mLegateLunghe.empty() ? leggiCella(static_cast<SQLUSMALLINT>(colonna))
                                                       : cellaLegata(colonna));
        return true;
    });
    riga.dati = QByteArray(mLetti.constData(), mLetti.size());
    return letta;
}

void Istruzione::legaColonne(int colonne)
{
    const auto quante = static_cast<std::size_t>(colonne);
    mLegate.resize(quante * larghezzaLegata);
    mLegateLunghe.resize(quante);
    for (std::size_t i = 0; i < quante; ++i)
        controlla(SQLBindCol(mManiglia, static_cast<SQLUSMALLINT>(i + 1), SQL_C_CHAR,
                             &mLegate[i * larghezzaLegata], larghezzaLegata, &mLegateLunghe[i]));
}

/// A value that did not fit is read anew, in pieces.
Riga::Cella Istruzione::cellaLegata(int colonna)
{
    const auto posto = static_cast<std::size_t>(colonna - 1);
    const SQLLEN lunga = mLegateLunghe[posto];
    const auto inizio = static_cast<qint32>(mLetti.size());
    if (lunga == SQL_NULL_DATA)
        return {inizio, -1};
    if (lunga == SQL_NO_TOTAL || lunga >= larghezzaLegata)
        return leggiCella(static_cast<SQLUSMALLINT>(colonna));
    mLetti.append(&mLegate[posto * larghezzaLegata], lunga);
    return {inizio, static_cast<qint32>(lunga)};
}

/// Most values fit the first call; of a longer one the driver tells how much is left, or that it cannot tell.
Riga::Cella Istruzione::leggiCella(SQLUSMALLINT colonna)
{
    constexpr qsizetype primoPasso = 256;
    const qsizetype inizio = mLetti.size();
    qsizetype letti = 0;
    for (qsizetype passo = primoPasso;;) {
        mLetti.resize(inizio + letti + passo);
        SQLLEN resto = 0;
        const SQLRETURN esito = SQLGetData(mManiglia, colonna, SQL_C_CHAR, mLetti.data() + inizio + letti,
                                           static_cast<SQLLEN>(passo), &resto);
        if (esito == SQL_NO_DATA) // the value ended exactly with the call before
            break;
        controlla(esito);
        if (resto == SQL_NULL_DATA) {
            mLetti.resize(inizio);
            return {static_cast<qint32>(inizio), -1};
        }
        const bool ancora = resto == SQL_NO_TOTAL || resto >= passo;
        letti += ancora ? passo - 1 : static_cast<qsizetype>(resto); // less the terminator
        if (!ancora)
            break;
        passo = resto == SQL_NO_TOTAL ? passo * 2 : static_cast<qsizetype>(resto) - passo + 2;
    }
    mLetti.resize(inizio + letti);
    return {static_cast<qint32>(inizio), static_cast<qint32>(letti)};
}

} // namespace giacenza::odbc
