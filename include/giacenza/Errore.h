#pragma once

#include <giacenza/esporta.h>

#include <QByteArray>
#include <QString>

#include <exception>

namespace giacenza {

/// What every failure of the component derives from: a text that can be shown, in UTF-8 by what().
class GIACENZA_EXPORT Errore : public std::exception
{
public:
    /// testo: what can be shown.
    explicit Errore(const QString& testo) : mTesto(testo), mUtf8(testo.toUtf8()) {}

    /// The text, in UTF-8.
    const char* what() const noexcept override { return mUtf8.constData(); }
    /// The text.
    const QString& testo() const noexcept { return mTesto; }

private:
    QString mTesto;
    QByteArray mUtf8;
};

/// A failure of the database or of its driver, unchanged.
///
/// sqlstate(): the five characters of the standard ("08001", "HYT00", "23000"); "HY000" where the driver
/// names none. codiceNativo(): the database's own number, 0 when it gave none. testo(): the driver's text.
/// istruzione(): the SQL text that failed, empty when the failure was not a statement's.
class GIACENZA_EXPORT ErroreDatabase : public Errore
{
public:
    /// The parts are those that are read below.
    ErroreDatabase(const QString& sqlstate, int codiceNativo, const QString& testo,
                   const QString& istruzione = {})
        : Errore(testo), mSqlstate(sqlstate), mCodiceNativo(codiceNativo), mIstruzione(istruzione)
    {}

    /// The five characters of the standard.
    const QString& sqlstate() const noexcept { return mSqlstate; }
    /// The database's own number, 0 when it gave none.
    int codiceNativo() const noexcept { return mCodiceNativo; }
    /// The SQL text that failed, may be empty.
    const QString& istruzione() const noexcept { return mIstruzione; }

private:
    QString mSqlstate;
    int mCodiceNativo;
    QString mIstruzione;
};

} // namespace giacenza
