#include "dintorni/serverproprio.h"

#include <QFile>
#include <QProcess>
#include <QRegularExpression>

#include <stdexcept>
#include <utility>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

namespace {

constexpr char serverDelleProve[] = "GIACENZA_SERVER_PROPRIO";
constexpr int pazienza = 120'000;

} // namespace

ServerProprio::ServerProprio(QString cartella) : mCartella(std::move(cartella))
{
    comanda(u"avvia"_s);
    qputenv(serverDelleProve, QFile::encodeName(mCartella));
}

ServerProprio::~ServerProprio()
{
    qunsetenv(serverDelleProve);
    // One that a test left frozen would not hear that it is to end.
    prova(u"sgela"_s);
    prova(u"ferma"_s);
}

QString ServerProprio::porta() const
{
    QFile scritta(file(u"porta"_s));
    if (!scritta.open(QIODevice::ReadOnly))
        throw std::runtime_error("the server has no port");
    return QString::fromLatin1(scritta.readAll()).trimmed();
}

void ServerProprio::riavviaSu(const QString& porta) const
{
    QFile scritta(file(u"porta"_s));
    if (!scritta.open(QIODevice::WriteOnly) || scritta.write(porta.toLatin1() + '\n') < 0)
        throw std::runtime_error("the server's port cannot be written");
    scritta.close();
    riavvia();
}

void ServerProprio::riavviaAltrove() const
{
    constexpr int prima = 20'000;
    constexpr int quante = 12'000;
    riavviaSu(QString::number(prima + (porta().toInt() - prima + quante / 2) % quante));
}

QString ServerProprio::stringa(const QString& base, const QString& porta, int secondi)
{
    static const QRegularExpression voce(u"PORT=\\d+"_s);
    return QString(base).replace(voce, u"PORT="_s + porta) +
           u";CONN_TIMEOUT=%1;READ_TIMEOUT=%1;WRITE_TIMEOUT=%1"_s.arg(secondi);
}

bool ServerProprio::prova(const QString& comando) const
{
    QProcess processo;
    processo.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    processo.start(QStringLiteral(GIACENZA_MARIADB_PRIVATO), {comando, mCartella});
    return processo.waitForFinished(pazienza) && processo.exitStatus() == QProcess::NormalExit &&
           processo.exitCode() == 0;
}

void ServerProprio::comanda(const QString& comando) const
{
    if (!prova(comando))
        throw std::runtime_error("mariadb-privato " + comando.toStdString() + " failed");
}

} // namespace giacenza::prove
