#include "schema/dati/struttura.h"

#include "data/recordset.h"
#include "schema/dati/tabelle.h"
#include "schema/script.h"

namespace giacenza::dimostrazione {

namespace {

bool esiste(Connessione& connessione, const QString& tabella)
{
    const QString istruzione =
        connessione.dialetto() == Dialetto::sqlite
            ? QStringLiteral("select 1 from sqlite_master where type = 'table' and name = '%1'")
            : QStringLiteral("select 1 from information_schema.tables where table_schema = database() and "
                             "table_name = '%1'");
    Recordset righe;
    righe.apri(connessione, istruzione.arg(tabella));
    return !righe.eof();
}

bool indice(const QString& istruzione)
{
    return istruzione.startsWith(QLatin1String("create index")) ||
           istruzione.startsWith(QLatin1String("create unique index"));
}

void pretendiDialettoNoto(const Connessione& connessione)
{
    if (connessione.dialetto() == Dialetto::altro)
        throw Rifiuto(QStringLiteral("Il database non è né MariaDB né SQLite."));
}

} // namespace

void pretendiSenzaTabelle(Connessione& connessione)
{
    pretendiDialettoNoto(connessione);
    for (const Tabella* tabella : tutteLeTabelle()) {
        if (esiste(connessione, tabella->nome))
            throw Rifiuto(
                QStringLiteral("La tabella %1 esiste già: senza --crea si riempiono le tabelle che ci "
                               "sono, se sono vuote.")
                    .arg(tabella->nome));
    }
}

void pretendiTabelleVuote(Connessione& connessione)
{
    pretendiDialettoNoto(connessione);
    for (const Tabella* tabella : tutteLeTabelle()) {
        if (!esiste(connessione, tabella->nome))
            throw Rifiuto(
                QStringLiteral("Manca la tabella %1: con --crea si creano tutte.").arg(tabella->nome));
        Recordset righe;
        righe.apri(connessione, QStringLiteral("select 1 from %1 limit 1").arg(tabella->nome));
        if (!righe.eof())
            throw Rifiuto(QStringLiteral("La tabella %1 contiene già dei dati: i dati dimostrativi si "
                                         "aggiungono solo a un database vuoto.")
                              .arg(tabella->nome));
    }
}

void creaTabelle(Connessione& connessione)
{
    for (const QString& istruzione : istruzioniSchema(connessione.dialetto())) {
        if (!indice(istruzione))
            connessione.esegui(istruzione);
    }
}

void creaIndici(Connessione& connessione)
{
    for (const QString& istruzione : istruzioniSchema(connessione.dialetto())) {
        if (indice(istruzione))
            connessione.esegui(istruzione);
    }
}

void togliTabelle(Connessione& connessione) noexcept
{
    for (const Tabella* tabella : tutteLeTabelle()) {
        try {
            connessione.esegui(QStringLiteral("drop table if exists ") + tabella->nome);
        } catch (...) {
            // The failure that brought us here is the one to tell.
        }
    }
}

void aggiornaStatistiche(Connessione& connessione)
{
    if (connessione.dialetto() == Dialetto::sqlite) {
        connessione.esegui(QStringLiteral("analyze"));
        return;
    }
    for (const Tabella* tabella : tutteLeTabelle()) {
        Recordset esito;
        esito.apri(connessione, QStringLiteral("analyze table ") + tabella->nome);
    }
}

void attivaGiornale(Connessione& connessione)
{
    if (connessione.dialetto() != Dialetto::sqlite)
        return;
    Recordset esito;
    esito.apri(connessione, QStringLiteral("pragma journal_mode = wal"));
    if (esito.valore(0) != QStringLiteral("wal"))
        throw Rifiuto(QStringLiteral("Il file non accetta il giornale WAL: è su un disco di rete?"));
}

} // namespace giacenza::dimostrazione
