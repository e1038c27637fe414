#include "host/avvio/istanzaunica.h"

#include "host/avvio/assistenza.h"

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

IstanzaUnica::IstanzaUnica(const QString& fileIni, const QString& archivio, QObject* padre)
    : QObject(padre), mFileIni(QFileInfo(fileIni).absoluteFilePath()), mNome(nome(archivio))
{
    mServer.setSocketOptions(QLocalServer::UserAccessOption);
    connect(&mServer, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* chiamante = mServer.nextPendingConnection())
            chiamante->deleteLater();
        Q_EMIT chiamata();
    });
}

QString IstanzaUnica::nome(const QString& archivio) const
{
    const QString chi = QDir::homePath() + u'\n' + mFileIni + u'\n' + senzaParola(archivio);
    const QByteArray impronta = QCryptographicHash::hash(chi.toUtf8(), QCryptographicHash::Sha256);
    return u"deposito-"_s + QString::fromLatin1(impronta.toHex().left(24));
}

bool IstanzaUnica::cambia(const QString& archivio)
{
    const QString ora = nome(archivio);
    if (ora == mNome)
        return false;
    taci();
    mNome = ora;
    return true;
}

void IstanzaUnica::taci()
{
    mServer.close();
}

bool IstanzaUnica::chiama() const
{
    QLocalSocket presa;
    presa.connectToServer(mNome);
    return presa.waitForConnected(attesa);
}

bool IstanzaUnica::ascolta()
{
    if (mServer.isListening())
        return true;
    // Listening would take the place of one that lives; what a program that was killed left behind is in the
    // way.
    return !chiama() && QLocalServer::removeServer(mNome) && mServer.listen(mNome);
}

} // namespace deposito
