#include "benchmarks/quadro/basi.h"

#include "database/recordset.h"
#include "schema/dati/struttura.h"
#include "schema/script.h"

#include <QDir>
#include <QFile>

#include <cstdio>

using namespace Qt::StringLiterals;
using namespace giacenza;

namespace banco {

namespace {

const Limiti limiti{.comando = 3600};

/// A database of another schema must not be taken for this one.
QString improntaSchema(const QString& tipo)
{
    const Dialetto dialetto = tipo == u"sqlite"_s ? Dialetto::sqlite : Dialetto::mariadb;
    const QByteArray testo = istruzioniSchema(dialetto).join(u'\n').toUtf8();
    return QString::number(qChecksum(testo), 16);
}

/// Made last: without it a database is half filled.
bool completa(const QString& stringa)
{
    try {
        Connessione connessione;
        connessione.apri(stringa, limiti);
        Recordset segno;
        segno.apri(connessione, u"select count(*) from banco_completo"_s);
        return true;
    } catch (const ErroreDatabase&) {
        return false;
    }
}

} // namespace

QString Basi::stringa(const QString& tipo, const QString& nome, const Riempimento& riempi) const
{
    const QString base = u"banco_%1_%2"_s.arg(nome, improntaSchema(tipo));
    const bool sqlite = tipo == u"sqlite"_s;
    const QString file = mOpzioni.cartella + u'/' + base + u".db"_s;
    const QString testo =
        sqlite ? u"DRIVER={SQLite3};Database=%1;StepAPI=1;Timeout=5000;FKSupport=1;LoadExt=%2"_s.arg(
                     file, QStringLiteral(GIACENZA_ESTENSIONE_SQLITE))
               : mOpzioni.mariadb + u";DATABASE="_s + base;
    if (completa(testo))
        return testo;
    std::fprintf(stderr, "Making the database %s (%s)...\n", qPrintable(base), qPrintable(tipo));
    if (sqlite) {
        QDir().mkpath(mOpzioni.cartella);
        for (const QString& coda : {u""_s, u"-wal"_s, u"-shm"_s, u"-journal"_s})
            QFile::remove(file + coda);
    } else {
        Connessione server;
        server.apri(mOpzioni.mariadb, limiti);
        server.esegui(u"drop database if exists "_s + base);
        server.esegui(u"create database %1 character set utf8mb4"_s.arg(base));
    }
    Connessione connessione;
    connessione.apri(testo, limiti);
    dimostrazione::creaTabelle(connessione);
    riempi(connessione);
    dimostrazione::creaIndici(connessione);
    dimostrazione::aggiornaStatistiche(connessione);
    dimostrazione::attivaGiornale(connessione);
    connessione.esegui(u"create table banco_completo (fatto integer)"_s);
    return testo;
}

} // namespace banco
