#include "piano.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace giacenza::prove {

namespace {

/// A line of SQLite's plan: "SEARCH letve00f USING INDEX letve_anno (leanlv=? AND <expr>>?)", "SCAN
/// letve00f", or a step without a table. An automatic index is made by reading the whole table first.
void leggiSqlite(Piano& piano, const QString& riga)
{
    static const QRegularExpression passo(QStringLiteral("^(SCAN|SEARCH) (\\w+)(.*)$"));
    static const QRegularExpression uguaglianza(QStringLiteral("(\\w+)=\\?"));
    piano.testo += riga + u'\n';
    piano.ordina = piano.ordina || riga.contains(QLatin1String("TEMP B-TREE"));
    const auto trovato = passo.match(riga);
    if (!trovato.hasMatch())
        return;
    const QString come = trovato.captured(3);
    Accesso accesso{trovato.captured(2).toLower(),
                    trovato.captured(1) == QLatin1String("SCAN") || come.contains(QLatin1String("AUTOMATIC")),
                    {}};
    for (auto colonne = uguaglianza.globalMatch(come); colonne.hasNext();)
        accesso.colonne << colonne.next().captured(1).toLower();
    piano.accessi << accesso;
}

/// The objects of MariaDB's plan nest as its joins do. Access ALL reads the table, index all of an index, and
/// hash_ALL and hash_index do so for a join.
void leggiMariadb(Piano& piano, const QJsonValue& valore)
{
    const QJsonArray elementi = valore.toArray();
    for (const QJsonValue& elemento : elementi)
        leggiMariadb(piano, elemento);
    const QJsonObject oggetto = valore.toObject();
    if (oggetto.contains(QLatin1String("table_name"))) {
        QString tipo = oggetto.value(QLatin1String("access_type")).toString();
        tipo.remove(QLatin1String("hash_"));
        Accesso accesso{oggetto.value(QLatin1String("table_name")).toString().toLower(),
                        tipo == QLatin1String("ALL") || tipo == QLatin1String("index"),
                        {}};
        const QJsonArray colonne = oggetto.value(QLatin1String("used_key_parts")).toArray();
        for (const QJsonValue& colonna : colonne)
            accesso.colonne << colonna.toString().toLower();
        piano.accessi << accesso;
    }
    for (auto membro = oggetto.begin(); membro != oggetto.end(); ++membro) {
        piano.ordina = piano.ordina || membro.key() == QLatin1String("filesort");
        leggiMariadb(piano, membro.value());
    }
}

} // namespace

QStringList Piano::tabelle() const
{
    QStringList nomi;
    for (const Accesso& accesso : accessi)
        nomi << accesso.tabella;
    return nomi;
}

QStringList Piano::scansioni() const
{
    QStringList nomi;
    for (const Accesso& accesso : accessi) {
        if (accesso.tutta)
            nomi << accesso.tabella;
    }
    return nomi;
}

Piano leggiPiano(Connessione& connessione, const QString& istruzione, std::span<const Valore> parametri)
{
    Piano piano;
    Recordset righe;
    if (connessione.dialetto() == Dialetto::sqlite) {
        righe.apri(connessione, QStringLiteral("explain query plan ") + istruzione,
                   Recordset::Cursore::chiave, parametri);
        for (; !righe.eof(); righe.successivo())
            leggiSqlite(piano, righe.valore(QStringLiteral("detail")).value_or(QString()));
        return piano;
    }
    righe.apri(connessione, QStringLiteral("explain format=json ") + istruzione, Recordset::Cursore::chiave,
               parametri);
    piano.testo = righe.valore(0).value_or(QString());
    leggiMariadb(piano, QJsonDocument::fromJson(piano.testo.toUtf8()).object());
    return piano;
}

} // namespace giacenza::prove
