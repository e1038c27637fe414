#include "spiegazioni.h"

#include <QFileInfo>
#include <QRegularExpression>

namespace deposito {

namespace {

QString causa(const QString& sqlstate)
{
    if (sqlstate == u"28000")
        return QStringLiteral("L'archivio non accetta il nome utente o la parola d'ordine.");
    if (sqlstate == u"IM002" || sqlstate == u"IM003" || sqlstate == u"01000")
        return QStringLiteral("Il driver ODBC indicato per l'archivio non è installato.");
    if (sqlstate.startsWith(u"08"))
        return QStringLiteral("L'archivio non è raggiungibile: controllare il server, la rete e il nome "
                              "dell'archivio.");
    return QStringLiteral("L'archivio ha risposto con un errore.");
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
    return QStringLiteral("La schermata non è stata aperta. %1\n\nRisposta dell'archivio: %2 (%3, %4)")
        .arg(causa(errore.sqlstate()), errore.testo(), errore.sqlstate(),
             QString::number(errore.codiceNativo()));
}

QString nomeArchivio(const QString& stringaConnessione)
{
    const QString nome = campo(stringaConnessione, QStringLiteral("DATABASE"));
    const QString server = campo(stringaConnessione, QStringLiteral("SERVER"));
    if (nome.isEmpty())
        return campo(stringaConnessione, QStringLiteral("DSN"));
    if (server.isEmpty())
        return QFileInfo(nome).fileName();
    return QStringLiteral("%1 su %2").arg(nome, server);
}

} // namespace deposito
