#include "base/spiegazioni.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

QString perCodiceMariadb(int codice)
{
    static const QString pieno = u"Il disco dell'archivio è pieno."_s;
    static const QString proibito =
        u"Questo utente non ha il permesso di farlo: chiedere a chi amministra l'archivio."_s;
    static const QString solaLettura = u"L'archivio è in sola lettura: chiedere a chi lo amministra."_s;
    static const QHash<int, QString> frasi = {
        {1021, pieno},
        {1040, u"Il server dell'archivio ha troppe postazioni collegate: riprovare tra poco."_s},
        {1044, u"Il server non apre a questo utente la base di dati indicata."_s},
        {1045, u"Il server ha rifiutato il nome o la parola d'ordine."_s},
        {1049, u"Sul server non c'è la base di dati indicata."_s},
        {1062, u"C'è già una registrazione con la stessa chiave."_s},
        {1114, pieno},
        {1142, proibito},
        {1143, proibito},
        {1146, u"Nell'archivio manca una tabella."_s},
        {1205, u"Un'altra postazione tiene occupata la registrazione: riprovare tra poco."_s},
        {1213, u"Due postazioni si sono ostacolate: riprovare."_s},
        {1290, solaLettura},
        {1836, solaLettura},
        {1969, u"L'archivio non ha risposto in tempo."_s},
        {2002, u"Il server dell'archivio non risponde."_s},
        {2003, u"Il server dell'archivio non risponde."_s},
        {2005, u"Il server dell'archivio non si trova in rete."_s},
        {2006, u"La connessione con l'archivio è caduta."_s},
        {2013, u"La connessione con l'archivio è caduta."_s},
        {2026, u"La connessione cifrata con il server non è riuscita."_s},
    };
    return frasi.value(codice);
}

/// SQLite's driver gives its text and seldom its number.
QString perTestoSqlite(const QString& testo)
{
    static const std::pair<QString, QString> frasi[] = {
        {u"database is locked"_s, u"Un'altra postazione tiene occupato l'archivio: riprovare tra poco."_s},
        {u"database or disk is full"_s, u"Il disco dell'archivio è pieno."_s},
        {u"disk I/O error"_s, u"Il file dell'archivio non si legge o non si scrive."_s},
        {u"interrupted"_s, u"L'archivio non ha risposto in tempo."_s},
        {u"readonly database"_s, u"L'archivio è in sola lettura: chiedere a chi lo amministra."_s},
        {u"file is not a database"_s, u"Il file indicato non è un archivio."_s},
        {u"unable to open database"_s, u"Il file dell'archivio non si apre."_s},
        {u"no such table"_s, perCodiceMariadb(1146)},
        {u"UNIQUE constraint failed"_s, u"C'è già una registrazione con la stessa chiave."_s},
    };
    for (const auto& [parole, frase] : frasi)
        if (testo.contains(parole, Qt::CaseInsensitive))
            return frase;
    return {};
}

/// What the standard's code alone tells: its first letters name a class.
QString perClasse(const QString& sqlstate)
{
    static const std::pair<QString, QString> frasi[] = {
        {u"01000"_s, u"Manca il driver ODBC dell'archivio."_s},
        {u"08001"_s, u"L'archivio non si raggiunge."_s},
        {u"08"_s, perCodiceMariadb(2006)},
        {u"42S02"_s, perCodiceMariadb(1146)},
        {u"HYT"_s, u"L'archivio non ha risposto in tempo."_s},
        {u"IM002"_s, u"Manca il driver ODBC dell'archivio."_s},
        {u"IM003"_s, u"Manca il driver ODBC dell'archivio."_s},
    };
    for (const auto& [inizio, frase] : frasi)
        if (sqlstate.startsWith(inizio))
            return frase;
    return u"L'archivio ha rifiutato l'operazione."_s;
}

} // namespace

QString spiega(const ErroreDatabase& errore)
{
    QString frase = perCodiceMariadb(errore.codiceNativo());
    if (frase.isEmpty())
        frase = perTestoSqlite(errore.testo());
    return frase.isEmpty() ? perClasse(errore.sqlstate()) : frase;
}

QString spiega(const Errore& errore)
{
    const auto* delDatabase = dynamic_cast<const ErroreDatabase*>(&errore);
    return delDatabase ? spiega(*delDatabase) : errore.testo();
}

bool forseScritto(const Errore& errore)
{
    constexpr int nonMandata = 2006; // the server was gone before
    constexpr int senzaRisposta = 2013;
    const auto* delDatabase = dynamic_cast<const ErroreDatabase*>(&errore);
    if (!delDatabase || delDatabase->codiceNativo() == nonMandata)
        return false;
    const bool caduta =
        delDatabase->codiceNativo() == senzaRisposta || delDatabase->sqlstate().startsWith("08"_L1);
    return caduta && delDatabase->istruzione().startsWith("update"_L1, Qt::CaseInsensitive);
}

} // namespace giacenza
