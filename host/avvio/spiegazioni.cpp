#include "host/avvio/spiegazioni.h"

#include "base/spiegazioni.h"
#include "database/stringaconnessione.h"

#include <QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;

namespace deposito {

namespace {

using giacenza::ErroreDatabase;
using giacenza::voceConnessione;

QString rimedio(const ErroreDatabase& errore)
{
    static const std::pair<int, QString> perCodice[] = {
        {1044, u"Chiedere a chi amministra il server di dargliene i diritti."_s},
        {1045,
         u"Controllare l'utente e la parola d'ordine, e che il server li accetti da questo computer."_s},
        {1049, u"Controllare il nome della base, maiuscole comprese."_s},
        {2002, u"Controllare che il server sia acceso, il nome, la porta e la rete."_s},
        {2003, u"Controllare che il server sia acceso, il nome, la porta e la rete."_s},
        {2005, u"Controllare come è scritto il nome del server."_s},
        {2026, u"Controllare il certificato, o chiedere se il server la offre."_s},
    };
    for (const auto& [codice, testo] : perCodice)
        if (codice == errore.codiceNativo())
            return testo;
    if (errore.sqlstate().startsWith("IM00"_L1) || errore.sqlstate() == "01000"_L1)
        return u"Installare odbc-mariadb per un server MariaDB, libsqliteodbc per un file."_s;
    if (errore.sqlstate() == "42S02"_L1)
        return u"Le tabelle si creano con schema/mariadb.sql o schema/sqlite.sql."_s;
    return {};
}

} // namespace

QString causa(const ErroreDatabase& errore)
{
    const QString fare = rimedio(errore);
    return fare.isEmpty() ? giacenza::spiega(errore) : giacenza::spiega(errore) + u' ' + fare;
}

QString rispostaDellArchivio(const ErroreDatabase& errore)
{
    return u"%1 (%2, %3)"_s.arg(errore.testo(), errore.sqlstate(), QString::number(errore.codiceNativo()));
}

QString spiega(const ErroreDatabase& errore)
{
    return u"La schermata non è stata aperta. %1\n\nRisposta dell'archivio: %2"_s.arg(
        causa(errore), rispostaDellArchivio(errore));
}

QString nomeArchivio(const QString& stringaConnessione)
{
    const QString nome = voceConnessione(stringaConnessione, u"DATABASE").toString();
    const QStringView server = voceConnessione(stringaConnessione, u"SERVER");
    if (nome.isEmpty())
        return voceConnessione(stringaConnessione, u"DSN").toString();
    if (server.isEmpty())
        return QFileInfo(nome).fileName();
    return u"%1 su %2"_s.arg(nome, server);
}

} // namespace deposito
