#pragma once

#include "database/comando.h"
#include "database/nuovariga.h"
#include "database/recordset.h"
#include "support/bancadati.h"
#include "support/stampa.h"

#include <gmock/gmock.h>

#include <QString>

#include <string>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

/// An empty database of each kind; what differs between them is asked here.
class Basi : public testing::TestWithParam<std::string>
{
protected:
    bool mariadb() const { return GetParam() == "mariadb"; }

    /// One of two texts, by the kind of the database.
    QString scegli(const QString& perMariadb, const QString& perSqlite) const
    {
        return mariadb() ? perMariadb : perSqlite;
    }

    /// A table that most tests use.
    void creaTabella() const
    {
        mBase.esegui(u"create table prova (id integer primary key, testo %1, n integer, "
                     "importo decimal(15,2), giorno date, conto integer default 7)"_s.arg(
                         scegli(u"longtext character set utf8mb4 collate utf8mb4_bin"_s, u"text"_s)));
    }

    /// n rows with id 1 to n, and a text long enough that no driver can have read them all ahead.
    void riempi(int n) const
    {
        mBase.esegui(u"insert into prova (id, testo) "
                     "with c as (select 0 d union select 1 union select 2 union select 3 union "
                     "select 4 union select 5 union select 6 union select 7 union select 8 union "
                     "select 9), s as (select 1+a.d+10*b.d+100*e.d+1000*f.d i from c a, c b, c e, c f) "
                     "select i, 'testo di riempimento della riga' from s where i<=%1"_s.arg(n));
    }

    BancaDati mBase{GetParam(), Contenuto::vuoto};
};

/// The first value of the last row.
inline Valore ultima(Recordset& recordset)
{
    Valore letto;
    for (; !recordset.eof(); recordset.successivo())
        letto = recordset.valore(0);
    return letto;
}

/// The error of a call that must fail.
template<class Chiamata>
ErroreDatabase erroreDi(Chiamata chiamata)
{
    try {
        chiamata();
    } catch (const ErroreDatabase& errore) {
        return errore;
    }
    ADD_FAILURE() << "non ha fallito";
    return {QString(), 0, QString()};
}

#define SU_OGNI_BASE(Gruppo)                                                                                 \
    INSTANTIATE_TEST_SUITE_P(Basi, Gruppo, testing::Values("sqlite", "mariadb"),                             \
                             giacenza::prove::nomeBase<testing::TestParamInfo<std::string>>)

} // namespace giacenza::prove
