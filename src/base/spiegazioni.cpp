#include "base/spiegazioni.h"

#include <QHash>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

QString perCodiceMariadb(int codice)
{
    static const QHash<int, QString> frasi = {
        {1045, u"Il server ha rifiutato il nome o la parola d'ordine."_s},
        {1049, u"Sul server non c'è la base di dati indicata."_s},
        {1062, u"C'è già una registrazione con la stessa chiave."_s},
        {1142, u"Questo utente non ha il permesso di farlo: chiedere a chi amministra l'archivio."_s},
        {1205, u"Un'altra postazione tiene occupata la registrazione: riprovare tra poco."_s},
        {1213, u"Due postazioni si sono ostacolate: riprovare."_s},
        {2002, u"Il server dell'archivio non risponde."_s},
        {2003, u"Il server dell'archivio non risponde."_s},
        {2005, u"Il server dell'archivio non si trova in rete."_s},
        {2006, u"La connessione con l'archivio è caduta."_s},
        {2013, u"La connessione con l'archivio è caduta."_s},
    };
    return frasi.value(codice);
}

/// SQLite's driver gives its text and seldom its number.
QString perTestoSqlite(const QString& testo)
{
    static const std::pair<QString, QString> frasi[] = {
        {u"database is locked"_s, u"Un'altra postazione tiene occupato l'archivio: riprovare tra poco."_s},
        {u"database or disk is full"_s, u"Il disco dell'archivio è pieno."_s},
        {u"readonly database"_s, u"L'archivio è in sola lettura: chiedere a chi lo amministra."_s},
        {u"file is not a database"_s, u"Il file indicato non è un archivio."_s},
        {u"unable to open database"_s, u"Il file dell'archivio non si apre."_s},
        {u"UNIQUE constraint failed"_s, u"C'è già una registrazione con la stessa chiave."_s},
    };
    for (const auto& [parole, frase] : frasi)
        if (testo.contains(parole, Qt::CaseInsensitive))
            return frase;
    return {};
}

} // namespace

QString spiega(const ErroreDatabase& errore)
{
    QString frase = perCodiceMariadb(errore.codiceNativo());
    if (frase.isEmpty())
        frase = perTestoSqlite(errore.testo());
    if (frase.isEmpty() && errore.sqlstate().startsWith("08"_L1))
        frase = perCodiceMariadb(2006);
    if (frase.isEmpty() && errore.sqlstate().startsWith("HYT"_L1))
        frase = u"L'archivio non ha risposto in tempo."_s;
    return frase.isEmpty() ? u"L'archivio ha rifiutato l'operazione."_s : frase;
}

QString spiega(const Errore& errore)
{
    const auto* delDatabase = dynamic_cast<const ErroreDatabase*>(&errore);
    return delDatabase ? spiega(*delDatabase) : errore.testo();
}

} // namespace giacenza
