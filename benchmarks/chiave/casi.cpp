#include "benchmarks/chiave/casi.h"

#include "benchmarks/chiave/giorno.h"
#include "database/recordset.h"
#include "schema/dati/riempimento.h"

#include <algorithm>

using namespace Qt::StringLiterals;
using namespace giacenza;

namespace banco {

namespace {

const QString giorno = QString::fromLatin1(giornoMisure);

QList<QStringList> leggi(const Deposito& deposito, const QString& istruzione)
{
    Connessione connessione;
    connessione.apri(deposito.stringa, {.comando = 3600});
    Recordset righe;
    righe.apri(connessione, istruzione, Recordset::Cursore::soloAvanti);
    QList<QStringList> lette;
    for (; !righe.eof(); righe.successivo()) {
        QStringList& riga = lette.emplace_back();
        for (int colonna = 0; colonna < righe.colonne(); ++colonna)
            riga += righe.valore(colonna).value_or(QString());
    }
    return lette;
}

/// As a value of a statement: what is empty was null.
QString valore(const QString& testo)
{
    return testo.isEmpty() ? u"null"_s : u'\'' + testo + u'\'';
}

/// Some of the cases, as far from each other as they go, half for one program and half for the other.
Richieste dividi(const QStringList& casi)
{
    constexpr qsizetype massimo = 240;
    constexpr qsizetype minimo = 10;
    if (casi.size() < minimo)
        throw Errore(u"The database has %1 cases to measure on, which are too few."_s.arg(casi.size()));
    const qsizetype quanti = std::min(casi.size(), massimo);
    Richieste richieste{{casi.first()}, {casi.first()}};
    for (qsizetype i = 1; i < quanti; ++i)
        (i % 2 == 0 ? richieste.nostre : richieste.riferimento) += casi[i * casi.size() / quanti];
    return richieste;
}

/// Numbers of this year, quoted, from its first to its last.
QString numeriSparsi(const Deposito& deposito)
{
    constexpr qint64 quanti = 600;
    const auto massimo = leggi(
        deposito, u"select max(cast(lenrlv as unsigned)) from letve00f where leanlv=%1"_s.arg(annoMisure));
    const qint64 ultimo = massimo.first().first().toLongLong();
    QStringList numeri;
    for (qint64 i = 0; i < quanti; ++i)
        numeri += u"'%1'"_s.arg(1 + i * ultimo / quanti);
    numeri.removeDuplicates();
    return numeri.join(u',');
}

} // namespace

Deposito deposito(const Basi& basi, const QString& tipo, qint64 righe)
{
    const auto riempi = [righe](Connessione& nuova) {
        dimostrazione::riempi(
            nuova, {.spedizioni = static_cast<int>(righe), .oggi = QDate::fromString(giorno, Qt::ISODate)});
    };
    return {tipo, righe, basi.stringa(tipo, u"deposito_%1"_s.arg(righe), riempi)};
}

Richieste casiDaRegistrare(const Deposito& deposito)
{
    const QString contatore =
        leggi(deposito, u"select UltimoNumGiacenza from ekelvorqzt_tabge00f"_s).first().first();
    const auto righe = leggi(
        deposito, u"select lefili, lenrlv, leanlv, ledtlv, lecodi, LEDTCO from letve00f where leanlv=%1 and "
                  "lenrlv in (%2) and LERFGI is null and lerico is null and lerife is not null order by "
                  "ledtlv, lenrlv"_s.arg(QString::number(annoMisure), numeriSparsi(deposito)));
    QStringList casi;
    for (const QStringList& r : righe) {
        const QString ldv = u"lenrlv='%1' and leanlv=%2 and lefili='%3'"_s.arg(r[1], r[2], r[0]);
        casi +=
            (r.mid(0, 5) +
             QStringList{
                 QString(), QString::number(annoMisure), giorno, u"0"_s,
                 u"delete from giace00f where GINRLV='%1' and GIANLV=%2 and GIFILI='%3'"_s.arg(r[1], r[2],
                                                                                               r[0]),
                 u"update letve00f set LERFGI=null, LEANGI=null, LEDTCO=%1 where %2"_s.arg(valore(r[5]), ldv),
                 u"update ekelvorqzt_tabge00f set UltimoNumGiacenza="_s + contatore})
                .join(u'\t');
    }
    return dividi(casi);
}

Richieste casiAperti(const Deposito& deposito)
{
    const auto massimo = leggi(
        deposito, u"select max(cast(lenrlv as unsigned)) from letve00f where leanlv=%1"_s.arg(annoMisure));
    const QString emessa = QString::number(massimo.first().first().toLongLong() + 1);
    const auto righe = leggi(
        deposito,
        u"select lefili, lenrlv, leanlv, ledtlv, lecodi, GINRGI, GIANGI, GIDTGI, GIGGSO, GINRAV, GIDTAV, "
        "GIIMGI, FissoGiacenza from giace00f inner join letve00f on lefili=GIFILI and lenrlv=GINRLV and "
        "leanlv=GIANLV inner join filiali on filiali.codice=lefili inner join codicizona on "
        "codicizona.Codice=lelin1 inner join forni on forni.Codice=lecdve inner join tabfatturazione on "
        "FALCOD='C' and FACODI=lecodi and FACMPE=lecmpe where GIANGI=%1 and GIDTBF is null and GINRAV is not "
        "null and GIDTAV<'%2' and lerico is null and (select count(*) from letve00f altra where "
        "altra.LERFGI=GINRGI and altra.LEANGI=GIANGI)=1 order by GIDTGI, GINRGI"_s.arg(
            QString::number(annoMisure), giorno));
    QStringList casi;
    for (const QStringList& r : righe) {
        const QString caso = u"GINRLV='%1' and GIANLV=%2 and GIFILI='%3'"_s.arg(r[1], r[2], r[0]);
        const qint64 giorni =
            QDate::fromString(r[7], Qt::ISODate).daysTo(QDate::fromString(giorno, Qt::ISODate));
        casi += (r.mid(0, 8) + QStringList{QString::number(giorni),
                                           u"update giace00f set GIGGSO=%1, GINRAV=%2, GIDTAV=%3, GIIMGI=%4, "
                                           "FissoGiacenza=%5, GIDTBF=null where %6"_s.arg(
                                               valore(r[8]), valore(r[9]), valore(r[10]), valore(r[11]),
                                               valore(r[12]), caso),
                                           u"delete from letve00f where lenrlv='%1' and leanlv=%2"_s.arg(
                                               emessa, QString::number(annoMisure))})
                    .join(u'\t');
    }
    return dividi(casi);
}

} // namespace banco
