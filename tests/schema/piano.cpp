#include "piano.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

namespace {

/// A line of SQLite's plan: "SEARCH letve00f USING INDEX letve_anno (leanlv=? AND <expr>>?)", "SCAN
/// letve00f", or a step without a table. An automatic index is made by reading the whole table first.
void leggiSqlite(Piano& piano, const QString& riga)
{
    static const QRegularExpression passo(u"^(SCAN|SEARCH) (\\w+)(.*)$"_s);
    static const QRegularExpression uguaglianza(u"(\\w+)=\\?"_s);
    piano.testo += riga + u'\n';
    piano.ordina = piano.ordina || riga.contains("TEMP B-TREE"_L1);
    const auto trovato = passo.match(riga);
    if (!trovato.hasMatch())
        return;
    const QString come = trovato.captured(3);
    AccessoTabella accesso{
        trovato.captured(2).toLower(), trovato.captured(1) == "SCAN"_L1 || come.contains("AUTOMATIC"_L1), {}};
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
    if (oggetto.contains("table_name"_L1)) {
        QString tipo = oggetto.value("access_type"_L1).toString();
        tipo.remove("hash_"_L1);
        AccessoTabella accesso{
            oggetto.value("table_name"_L1).toString().toLower(), tipo == "ALL"_L1 || tipo == "index"_L1, {}};
        const QJsonArray colonne = oggetto.value("used_key_parts"_L1).toArray();
        for (const QJsonValue& colonna : colonne)
            accesso.colonne << colonna.toString().toLower();
        piano.accessi << accesso;
    }
    piano.soloDaIndice =
        piano.soloDaIndice || oggetto.value("message"_L1).toString() == "Select tables optimized away"_L1;
    for (auto membro = oggetto.begin(); membro != oggetto.end(); ++membro) {
        piano.ordina = piano.ordina || membro.key() == "filesort"_L1;
        leggiMariadb(piano, membro.value());
    }
}

/// A plan names a table as the statement does: what stands for another name is put back.
void traduci(Piano& piano, const QString& istruzione)
{
    static const QRegularExpression altroNome(
        u"(?:from|join) \\(*(\\w+) (?!on |where |left |inner )(\\w+) (?:on|where) "_s,
        QRegularExpression::CaseInsensitiveOption);
    QHash<QString, QString> tabelle;
    for (auto nomi = altroNome.globalMatch(istruzione); nomi.hasNext();) {
        const auto nome = nomi.next();
        tabelle.insert(nome.captured(2).toLower(), nome.captured(1).toLower());
    }
    for (AccessoTabella& accesso : piano.accessi)
        accesso.tabella = tabelle.value(accesso.tabella, accesso.tabella);
}

} // namespace

QStringList Piano::tabelle() const
{
    QStringList nomi;
    for (const AccessoTabella& accesso : accessi)
        nomi << accesso.tabella;
    return nomi;
}

QStringList Piano::scansioni() const
{
    QStringList nomi;
    for (const AccessoTabella& accesso : accessi) {
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
        righe.apri(connessione, u"explain query plan "_s + istruzione, Recordset::Cursore::chiave, parametri);
        for (; !righe.eof(); righe.successivo())
            leggiSqlite(piano, righe.valore(u"detail"_s).value_or(QString()));
        traduci(piano, istruzione);
        return piano;
    }
    righe.apri(connessione, u"explain format=json "_s + istruzione, Recordset::Cursore::chiave, parametri);
    piano.testo = righe.valore(0).value_or(QString());
    leggiMariadb(piano, QJsonDocument::fromJson(piano.testo.toUtf8()).object());
    traduci(piano, istruzione);
    return piano;
}

} // namespace giacenza::prove
