#include "host/avvio/sceltaarchivio.h"

#include "base/parti.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>

using namespace Qt::StringLiterals;

namespace deposito {

namespace {

const QString gruppo = u"archivio"_s;

/// A value of a connection string, kept together by braces where it holds what would end it.
QString valore(const QString& testo)
{
    static const QString speciali = u";{}[]()=?*!@, "_s;
    const auto speciale = [](QChar c) { return speciali.contains(c); };
    if (std::none_of(testo.begin(), testo.end(), speciale))
        return testo;
    QString dentro = testo;
    return u'{' + dentro.replace(u'}', u"}}"_s) + u'}';
}

QString estensioneSqlite()
{
    const QStringList cartelle = giacenza::cartelleParti();
    for (const QString& cartella : cartelle) {
        const QString file = QDir(cartella).absoluteFilePath(u"libgiacenza_sqlite.so"_s);
        if (QFileInfo(file).isFile())
            return file;
    }
    return {};
}

QString stringaSqlite(const QString& file)
{
    QString stringa = u"DRIVER={SQLite3};Database=%1;StepAPI=1;Timeout=5000;FKSupport=1"_s.arg(file);
    const QString estensione = estensioneSqlite();
    if (!estensione.isEmpty())
        stringa += u";LoadExt="_s + estensione;
    return stringa;
}

QString stringaMariadb(const SceltaArchivio& scelta, const QString& parola)
{
    QString stringa = u"DRIVER={MariaDB Unicode};SERVER=%1;PORT=%2;UID=%3;PWD=%4;DATABASE=%5"_s.arg(
        valore(scelta.server), QString::number(scelta.porta), valore(scelta.utente), valore(parola),
        valore(scelta.base));
    if (scelta.tls)
        stringa += u";FORCETLS=1"_s;
    if (scelta.tls && !scelta.certificato.isEmpty())
        stringa += u";SSLCA=%1;SSLVERIFY=1"_s.arg(scelta.certificato);
    return stringa;
}

QString mancanzaServer(const SceltaArchivio& scelta)
{
    if (scelta.server.trimmed().isEmpty())
        return u"Manca il nome o l'indirizzo del server."_s;
    if (scelta.porta < 1 || scelta.porta > 65535)
        return u"La porta è un numero da 1 a 65535."_s;
    if (scelta.base.trimmed().isEmpty())
        return u"Manca il nome della base di dati."_s;
    if (scelta.utente.trimmed().isEmpty())
        return u"Manca il nome dell'utente."_s;
    if (scelta.tls && !scelta.certificato.isEmpty() && !QFileInfo(scelta.certificato).isFile())
        return u"Il file del certificato non c'è: %1"_s.arg(scelta.certificato);
    return {};
}

} // namespace

QString mancanza(const SceltaArchivio& scelta)
{
    switch (scelta.tipo) {
    case TipoArchivio::dimostrazione:
        return {};
    case TipoArchivio::file:
        if (scelta.file.isEmpty())
            return u"Manca il file dell'archivio."_s;
        // The driver gives a name no way to hold what ends it.
        if (scelta.file.contains(u';') || scelta.file.contains(u'}'))
            return u"Il nome del file non può contenere \";\" o \"}\": %1"_s.arg(scelta.file);
        if (!QFileInfo(scelta.file).isFile())
            return u"Il file dell'archivio non c'è: %1"_s.arg(scelta.file);
        return {};
    case TipoArchivio::server:
        return mancanzaServer(scelta);
    }
    return {};
}

QString stringaOdbc(const SceltaArchivio& scelta, const QString& parola)
{
    switch (scelta.tipo) {
    case TipoArchivio::dimostrazione:
        return stringaSqlite(fileDimostrazione());
    case TipoArchivio::file:
        return stringaSqlite(scelta.file);
    case TipoArchivio::server:
        return stringaMariadb(scelta, parola);
    }
    return {};
}

QString nomeParola(const SceltaArchivio& scelta)
{
    return u"%1@%2:%3/%4"_s.arg(scelta.utente, scelta.server, QString::number(scelta.porta), scelta.base);
}

QString fileDimostrazione()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
           u"/giacenza/dimostrazione.db"_s;
}

std::optional<SceltaArchivio> sceltaRicordata(QSettings& impostazioni)
{
    if (!impostazioni.contains(gruppo + u"/tipo"_s))
        return std::nullopt;
    const auto voce = [&](const QString& nome) { return impostazioni.value(gruppo + u'/' + nome); };
    SceltaArchivio scelta;
    const QString tipo = voce(u"tipo"_s).toString();
    scelta.tipo = tipo == u"server"_s ? TipoArchivio::server
                  : tipo == u"file"_s ? TipoArchivio::file
                                      : TipoArchivio::dimostrazione;
    scelta.file = voce(u"file"_s).toString();
    scelta.server = voce(u"server"_s).toString();
    scelta.porta = impostazioni.value(gruppo + u"/porta"_s, scelta.porta).toInt();
    scelta.base = voce(u"base"_s).toString();
    scelta.utente = voce(u"utente"_s).toString();
    scelta.tls = voce(u"tls"_s).toBool();
    scelta.certificato = voce(u"certificato"_s).toString();
    const QString custodia = voce(u"parola"_s).toString();
    scelta.custodia = custodia == u"portachiavi"_s ? CustodiaParola::portachiavi
                      : custodia == u"inChiaro"_s  ? CustodiaParola::inChiaro
                                                   : CustodiaParola::nessuna;
    return scelta;
}

void ricordaScelta(QSettings& impostazioni, const SceltaArchivio& scelta)
{
    impostazioni.beginGroup(gruppo);
    impostazioni.remove(QString());
    const char* const tipi[] = {"dimostrazione", "file", "server"};
    const char* const custodie[] = {"nessuna", "portachiavi", "inChiaro"};
    impostazioni.setValue(u"tipo"_s, QLatin1String(tipi[static_cast<int>(scelta.tipo)]));
    if (scelta.tipo == TipoArchivio::file)
        impostazioni.setValue(u"file"_s, scelta.file);
    if (scelta.tipo == TipoArchivio::server) {
        impostazioni.setValue(u"server"_s, scelta.server);
        impostazioni.setValue(u"porta"_s, scelta.porta);
        impostazioni.setValue(u"base"_s, scelta.base);
        impostazioni.setValue(u"utente"_s, scelta.utente);
        impostazioni.setValue(u"tls"_s, scelta.tls);
        impostazioni.setValue(u"certificato"_s, scelta.certificato);
        impostazioni.setValue(u"parola"_s, QLatin1String(custodie[static_cast<int>(scelta.custodia)]));
    }
    impostazioni.endGroup();
}

} // namespace deposito
