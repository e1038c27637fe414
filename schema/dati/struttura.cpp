#include "schema/dati/struttura.h"

#include "database/recordset.h"
#include "schema/dati/tabelle.h"
#include "schema/script.h"

using namespace Qt::StringLiterals;

namespace giacenza::dimostrazione {

namespace {

bool esiste(Connessione& connessione, const QString& tabella)
{
    const QString istruzione =
        connessione.dialetto() == Dialetto::sqlite
            ? u"select 1 from sqlite_master where type = 'table' and name = '%1'"_s
            : u"select 1 from information_schema.tables where table_schema = database() and "
              "table_name = '%1'"_s;
    Recordset righe;
    righe.apri(connessione, istruzione.arg(tabella));
    return !righe.eof();
}

bool indice(const QString& istruzione)
{
    return istruzione.startsWith("create index"_L1) || istruzione.startsWith("create unique index"_L1);
}

void pretendiDialettoNoto(const Connessione& connessione)
{
    if (connessione.dialetto() == Dialetto::altro)
        throw Rifiuto(u"Il database non è né MariaDB né SQLite."_s);
}

} // namespace

void pretendiSenzaTabelle(Connessione& connessione)
{
    pretendiDialettoNoto(connessione);
    for (const Tabella* tabella : tutteLeTabelle()) {
        if (esiste(connessione, tabella->nome))
            throw Rifiuto(u"La tabella %1 esiste già: senza --crea si riempiono le tabelle che ci "
                          "sono, se sono vuote."_s.arg(tabella->nome));
    }
}

void pretendiTabelleVuote(Connessione& connessione)
{
    pretendiDialettoNoto(connessione);
    for (const Tabella* tabella : tutteLeTabelle()) {
        if (!esiste(connessione, tabella->nome))
            throw Rifiuto(u"Manca la tabella %1: con --crea si creano tutte."_s.arg(tabella->nome));
        Recordset righe;
        righe.apri(connessione, u"select 1 from %1 limit 1"_s.arg(tabella->nome));
        if (!righe.eof())
            throw Rifiuto(u"La tabella %1 contiene già dei dati: i dati dimostrativi si "
                          "aggiungono solo a un database vuoto."_s.arg(tabella->nome));
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
            connessione.esegui(u"drop table if exists "_s + tabella->nome);
        } catch (...) {
            // The failure that brought us here is the one to tell.
        }
    }
}

void aggiornaStatistiche(Connessione& connessione)
{
    if (connessione.dialetto() == Dialetto::sqlite) {
        connessione.esegui(u"analyze"_s);
        return;
    }
    for (const Tabella* tabella : tutteLeTabelle()) {
        Recordset esito;
        esito.apri(connessione, u"analyze table "_s + tabella->nome);
    }
}

void attivaGiornale(Connessione& connessione)
{
    if (connessione.dialetto() != Dialetto::sqlite)
        return;
    Recordset esito;
    esito.apri(connessione, u"pragma journal_mode = wal"_s);
    if (esito.valore(0) != u"wal"_s)
        throw Rifiuto(u"Il file non accetta il giornale WAL: è su un disco di rete?"_s);
}

} // namespace giacenza::dimostrazione
