#include "host/avvio/istanzaunica.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QLocalSocket>

using namespace Qt::StringLiterals;

namespace deposito {

namespace {

/// Milliseconds for a program on the same machine to take a call.
constexpr int attesa = 1000;

} // namespace

IstanzaUnica::IstanzaUnica(const QString& fileIni, QObject* padre) : QObject(padre)
{
    const QString chi = QDir::homePath() + u'\n' + QFileInfo(fileIni).absoluteFilePath();
    const QByteArray impronta = QCryptographicHash::hash(chi.toUtf8(), QCryptographicHash::Sha256);
    mNome = u"deposito-"_s + QString::fromLatin1(impronta.toHex().left(24));
    mServer.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&mServer, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* chiamante = mServer.nextPendingConnection())
            chiamante->deleteLater();
        Q_EMIT chiamata();
    });
}

bool IstanzaUnica::chiama() const
{
    QLocalSocket presa;
    presa.connectToServer(mNome);
    return presa.waitForConnected(attesa);
}

bool IstanzaUnica::ascolta()
{
    // Listening would take the place of one that lives; what a program that was killed left behind is in the
    // way.
    return !chiama() && QLocalServer::removeServer(mNome) && mServer.listen(mNome);
}

} // namespace deposito
