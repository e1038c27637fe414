#include "spiegazioni.h"

#include <QFileInfo>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace deposito {

namespace {

QString causa(const QString& sqlstate)
{
    if (sqlstate == u"28000")
        return u"L'archivio non accetta il nome utente o la parola d'ordine."_s;
    if (sqlstate == u"IM002" || sqlstate == u"IM003" || sqlstate == u"01000")
        return u"Il driver ODBC indicato per l'archivio non è installato."_s;
    if (sqlstate.startsWith(u"08"))
        return u"L'archivio non è raggiungibile: controllare il server, la rete e il nome "
               "dell'archivio."_s;
    return u"L'archivio ha risposto con un errore."_s;
}

QString campo(const QString& stringaConnessione, const QString& nome)
{
    const QRegularExpression espressione(
        QStringLiteral(R"((?:^|;)\s*%1\s*=\s*(?:\{([^}]*)\}|([^;]*)))").arg(nome),
        QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch trovato = espressione.match(stringaConnessione);
    return (trovato.captured(1) + trovato.captured(2)).trimmed();
}

} // namespace

QString spiega(const giacenza::ErroreDatabase& errore)
{
    return u"La schermata non è stata aperta. %1\n\nRisposta dell'archivio: %2 (%3, %4)"_s.arg(
        causa(errore.sqlstate()), errore.testo(), errore.sqlstate(), QString::number(errore.codiceNativo()));
}

QString nomeArchivio(const QString& stringaConnessione)
{
    const QString nome = campo(stringaConnessione, u"DATABASE"_s);
    const QString server = campo(stringaConnessione, u"SERVER"_s);
    if (nome.isEmpty())
        return campo(stringaConnessione, u"DSN"_s);
    if (server.isEmpty())
        return QFileInfo(nome).fileName();
    return u"%1 su %2"_s.arg(nome, server);
}

} // namespace deposito
