#include "host/avvio/provaarchivio.h"

#include "base/spiegazioni.h"
#include "data/archivio.h"
#include "data/istruzioniprova.h"
#include "database/recordset.h"

#include <QFile>
#include <QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;

namespace deposito {

namespace {

using giacenza::Connessione;
using giacenza::Dialetto;
using giacenza::ErroreDatabase;

/// What the clerk, or who looks after the server, can do about a failure to connect.
QString rimedio(const ErroreDatabase& errore)
{
    static const std::pair<int, QString> rimedi[] = {
        {1045,
         u"Controllare l'utente e la parola d'ordine, e che il server li accetti da questo computer."_s},
        {1044, u"Chiedere a chi amministra il server di dare a questo utente i diritti sulla base."_s},
        {1049, u"Controllare il nome della base, maiuscole comprese."_s},
        {2002, u"Controllare che il server sia acceso, il nome, la porta e la rete."_s},
        {2003, u"Controllare che il server sia acceso, il nome, la porta e la rete."_s},
        {2005, u"Controllare come è scritto il nome del server."_s},
        {2026,
         u"La connessione cifrata non è riuscita: controllare il certificato, o chiedere se il server la "
         "offre."_s},
    };
    for (const auto& [codice, testo] : rimedi)
        if (codice == errore.codiceNativo())
            return testo;
    return {};
}

EsitoProva nonRiuscita(const QString& testo, const ErroreDatabase& errore)
{
    return {.testo = testo,
            .dettaglio = u"%1 (%2, %3)"_s.arg(errore.testo(), errore.sqlstate(),
                                              QString::number(errore.codiceNativo()))};
}

EsitoProva nonConnessa(const ErroreDatabase& errore)
{
    const QString& stato = errore.sqlstate();
    if (stato == u"IM002"_s || stato == u"IM003"_s || stato == u"01000"_s)
        return nonRiuscita(
            u"Manca il driver ODBC dell'archivio. Installare odbc-mariadb per un server MariaDB, "
            "libsqliteodbc per un file."_s,
            errore);
    const QString cosa = giacenza::spiega(errore);
    const QString fare = rimedio(errore);
    return nonRiuscita(fare.isEmpty() ? cosa : cosa + u' ' + fare, errore);
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
            return nonConnessa(errore);
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
    return provaStringa(stringaOdbc(scelta, parola));
}

} // namespace deposito
