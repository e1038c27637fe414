#include "ricerca.h"

#include <giacenza/Errore.h>

#include <QDialog>
#include <QListWidget>
#include <QVBoxLayout>

#include <sql.h>
#include <sqlext.h>

namespace {

/// Throws what the driver said when a call has failed.
void pretendi(SQLRETURN esito, SQLSMALLINT tipo, SQLHANDLE che, const QString& istruzione = {})
{
    if (SQL_SUCCEEDED(esito))
        return;
    SQLCHAR stato[6] = "HY000";
    SQLCHAR testo[1024] = "";
    SQLINTEGER numero = 0;
    SQLGetDiagRec(tipo, che, 1, stato, &numero, testo, sizeof testo, nullptr);
    throw giacenza::ErroreDatabase(QString::fromLatin1(reinterpret_cast<char*>(stato)), numero,
                                   QString::fromUtf8(reinterpret_cast<char*>(testo)), istruzione);
}

SQLCHAR* perOdbc(QByteArray& testo)
{
    return reinterpret_cast<SQLCHAR*>(testo.data());
}

/// A connection for one statement.
class Lettura
{
public:
    explicit Lettura(const QString& percorso)
    {
        SQLAllocHandle(SQL_HANDLE_ENV, nullptr, &mAmbiente);
        SQLSetEnvAttr(mAmbiente, SQL_ATTR_ODBC_VERSION, reinterpret_cast<SQLPOINTER>(SQL_OV_ODBC3), 0);
        SQLAllocHandle(SQL_HANDLE_DBC, mAmbiente, &mConnessione);
        QByteArray stringa = percorso.toUtf8();
        pretendi(SQLDriverConnect(mConnessione, nullptr, perOdbc(stringa), SQL_NTS, nullptr, 0, nullptr,
                                  SQL_DRIVER_NOPROMPT),
                 SQL_HANDLE_DBC, mConnessione);
        SQLAllocHandle(SQL_HANDLE_STMT, mConnessione, &mRighe);
    }
    Lettura(const Lettura&) = delete;
    Lettura& operator=(const Lettura&) = delete;
    ~Lettura()
    {
        SQLFreeHandle(SQL_HANDLE_STMT, mRighe);
        SQLDisconnect(mConnessione);
        SQLFreeHandle(SQL_HANDLE_DBC, mConnessione);
        SQLFreeHandle(SQL_HANDLE_ENV, mAmbiente);
    }

    QList<QStringList> righe(const QString& istruzione)
    {
        QByteArray testo = istruzione.toUtf8();
        pretendi(SQLExecDirect(mRighe, perOdbc(testo), SQL_NTS), SQL_HANDLE_STMT, mRighe, istruzione);
        SQLSMALLINT colonne = 0;
        SQLNumResultCols(mRighe, &colonne);
        QList<QStringList> lette;
        while (SQLFetch(mRighe) == SQL_SUCCESS) {
            QStringList riga;
            for (SQLUSMALLINT i = 1; i <= colonne; ++i) {
                char valore[512] = "";
                SQLLEN lungo = 0;
                SQLGetData(mRighe, i, SQL_C_CHAR, valore, sizeof valore, &lungo);
                riga << (lungo == SQL_NULL_DATA ? QString() : QString::fromUtf8(valore));
            }
            lette << riga;
        }
        return lette;
    }

private:
    SQLHENV mAmbiente = nullptr;
    SQLHDBC mConnessione = nullptr;
    SQLHSTMT mRighe = nullptr;
};

} // namespace

void RicercaEsempio::mostra(const QString& istruzione, const QString& titolo, QWidget* padre)
{
    const QList<QStringList> righe = Lettura(mPercorso).righe(istruzione);
    QDialog finestra(padre);
    finestra.setWindowTitle(titolo);
    QListWidget elenco;
    for (const QStringList& riga : righe)
        elenco.addItem(riga.join(QStringLiteral("  ")));
    elenco.setCurrentRow(0);
    QVBoxLayout disposizione(&finestra);
    disposizione.addWidget(&elenco);
    QObject::connect(&elenco, &QListWidget::itemActivated, &finestra, &QDialog::accept);
    if (finestra.exec() == QDialog::Accepted && elenco.currentRow() >= 0)
        mScelta(righe.at(elenco.currentRow()));
}
