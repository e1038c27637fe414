#include "host/avvio/provaarchivio.h"

#include "base/spiegazioni.h"
#include "data/archivio.h"
#include "data/istruzioniprova.h"
#include "database/recordset.h"
#include "host/avvio/spiegazioni.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace deposito {

namespace {

using giacenza::Connessione;
using giacenza::Dialetto;
using giacenza::ErroreDatabase;

EsitoProva nonRiuscita(const QString& testo, const ErroreDatabase& errore)
{
    return {.testo = testo, .dettaglio = rispostaDellArchivio(errore)};
}

/// Statements that ask whether something may be done, without doing it.
std::optional<EsitoProva> dirittiMancanti(Connessione& connessione)
{
    for (const giacenza::istruzioni::Diritto& diritto : giacenza::istruzioni::diritti()) {
        try {
            connessione.esegui(diritto.domanda);
        } catch (const ErroreDatabase& errore) {
            return nonRiuscita(
                u"L'utente non può %1: chiedere a chi amministra l'archivio di dargli i diritti di "
                "schema/grants.sql."_s.arg(diritto.cosa),
                errore);
        }
    }
    return std::nullopt;
}

/// The driver opens any file, and finds no table in it. An empty one is a base without tables.
bool eArchivioSqlite(const QString& percorso)
{
    static const QByteArray inizio("SQLite format 3\0", 16);
    QFile file(percorso);
    return QFileInfo(percorso).isFile() && file.open(QIODevice::ReadOnly) &&
           (file.size() == 0 || file.read(inizio.size()) == inizio);
}

/// Why nothing can be written into a file; empty when it can. Beside it, its journal is written too.
QString soloLettura(const QString& percorso)
{
    const QFileInfo file(percorso);
    if (!file.isWritable())
        return u"Il file dell'archivio si può solo leggere: chiedere a chi amministra il computer di poterci "
               "scrivere. È %1"_s.arg(percorso);
    if (!QFileInfo(file.absolutePath()).isWritable())
        return u"Nella cartella dell'archivio non si può scrivere, e l'archivio ne ha bisogno: chiedere a "
               u"chi "
               "amministra il computer di poterci scrivere. È %1"_s.arg(file.absolutePath());
    return {};
}

/// What the screens' statements call and SQLite does not have by itself.
std::optional<EsitoProva> estensioneMancante(Connessione& connessione)
{
    try {
        connessione.esegui(giacenza::istruzioni::annoDiProva());
        return std::nullopt;
    } catch (const ErroreDatabase& errore) {
        return nonRiuscita(
            u"Il driver di SQLite non ha caricato l'estensione del programma, libgiacenza_sqlite: le "
            "schermate non lavorerebbero. Reinstallare il programma, o dirne il percorso con LoadExt nella "
            "stringa di connessione."_s,
            errore);
    }
}

bool distingueMaiuscole(Connessione& connessione)
{
    giacenza::Recordset riga;
    riga.apri(connessione, giacenza::istruzioni::comeSiChiamanoLeTabelle());
    return !riga.eof() && riga.valore(0).value_or(QString()) == u"0"_s;
}

EsitoProva esamina(Connessione& connessione)
{
    if (connessione.dialetto() == Dialetto::mariadb && distingueMaiuscole(connessione))
        return {.testo =
                    u"Il server distingue maiuscole e minuscole nei nomi delle tabelle: le schermate non le "
                    "troverebbero. Chi lo amministra imposti lower_case_table_names=1, prima di creare la "
                    "base."_s};
    try {
        giacenza::verificaTabelle(connessione);
    } catch (const ErroreDatabase& errore) {
        return {.testo = errore.testo() + u". Si creano con schema/mariadb.sql o schema/sqlite.sql."_s};
    }
    if (connessione.dialetto() == Dialetto::sqlite)
        if (const auto manca = estensioneMancante(connessione))
            return *manca;
    if (connessione.dialetto() == Dialetto::mariadb)
        if (const auto mancano = dirittiMancanti(connessione))
            return *mancano;
    return {.riuscita = true,
            .testo = u"L'archivio risponde, le tabelle ci sono e l'utente può lavorarci."_s};
}

} // namespace

EsitoProva provaStringa(const QString& stringa)
{
    try {
        Connessione connessione;
        try {
            connessione.apri(stringa);
        } catch (const ErroreDatabase& errore) {
            return nonRiuscita(causa(errore), errore);
        }
        return esamina(connessione);
    } catch (const ErroreDatabase& errore) {
        return nonRiuscita(giacenza::spiega(errore), errore);
    } catch (const std::exception& errore) {
        return {.testo = u"La prova non è arrivata in fondo: %1"_s.arg(QString::fromUtf8(errore.what()))};
    }
}

EsitoProva provaArchivio(const SceltaArchivio& scelta, const QString& parola)
{
    if (scelta.tipo == TipoArchivio::file && !eArchivioSqlite(scelta.file))
        return {.testo = u"Il file indicato non è un archivio."_s};
    if (scelta.tipo == TipoArchivio::file)
        if (const QString perche = soloLettura(scelta.file); !perche.isEmpty())
            return {.testo = perche};
    return provaStringa(stringaOdbc(scelta, parola));
}

} // namespace deposito
