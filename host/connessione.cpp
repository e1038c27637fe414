#include "connessione.h"

#include <QFile>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace deposito {

namespace {

/// Bytes; a connection string is a line, and what is longer is another file taken by mistake.
constexpr qint64 massimo = 65536;

StringaArchivio primaRiga(QIODevice& fonte, const QString& dove)
{
    const QByteArray riga = fonte.readLine(massimo + 2);
    if (riga.size() > massimo)
        return {{}, u"%1 non contiene una stringa di connessione: la prima riga è troppo lunga."_s.arg(dove)};
    const QString stringa = QString::fromUtf8(riga).trimmed();
    if (stringa.isEmpty())
        return {{}, u"%1 non contiene una stringa di connessione: la prima riga è vuota."_s.arg(dove)};
    return {stringa, {}};
}

StringaArchivio dalFile(const QString& nome)
{
    const QString dove = u"Il file \"%1\""_s.arg(nome);
    if (!QFileInfo(nome).isFile())
        return {{}, u"%1 con la stringa di connessione non c'è, o non è un file."_s.arg(dove)};
    QFile file(nome);
    if (!file.open(QIODevice::ReadOnly))
        return {{}, u"%1 con la stringa di connessione non si legge: %2."_s.arg(dove, file.errorString())};
    return primaRiga(file, dove);
}

} // namespace

StringaArchivio leggiArchivio(const FonteArchivio& fonte, QIODevice& ingresso)
{
    const QString ambiente = qEnvironmentVariable(variabileArchivio);
    qunsetenv(variabileArchivio);
    if (fonte.stringa == u"-"_s)
        return primaRiga(ingresso, u"Lo standard input"_s);
    if (!fonte.file.isNull())
        return dalFile(fonte.file);
    if (!fonte.stringa.isNull())
        return {fonte.stringa, {}};
    return {ambiente, {}};
}

} // namespace deposito
