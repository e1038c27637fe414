#include "host/avvio/portachiavi.h"

#include <QEventLoop>

#include <qt6keychain/keychain.h>

using namespace Qt::StringLiterals;

namespace deposito {

namespace {

const QString servizio = u"deposito"_s;

QString motivo(const QKeychain::Job& lavoro)
{
    switch (lavoro.error()) {
    case QKeychain::NoBackendAvailable:
    case QKeychain::NotImplemented:
        return u"Su questo computer non c'è un portachiavi."_s;
    case QKeychain::AccessDenied:
    case QKeychain::AccessDeniedByUser:
        return u"Il portachiavi è rimasto chiuso."_s;
    case QKeychain::EntryNotFound:
        return u"Nel portachiavi non c'è una parola d'ordine per questo archivio."_s;
    default:
        return u"Il portachiavi non ha risposto (%1)."_s.arg(lavoro.errorString());
    }
}

EsitoPortachiavi svolgi(QKeychain::Job& lavoro, const QString& nome)
{
    lavoro.setAutoDelete(false);
    lavoro.setKey(nome);
    QEventLoop attesa;
    QObject::connect(&lavoro, &QKeychain::Job::finished, &attesa, &QEventLoop::quit);
    lavoro.start();
    attesa.exec();
    if (lavoro.error() == QKeychain::NoError)
        return {.riuscito = true};
    const bool assente =
        lavoro.error() == QKeychain::NoBackendAvailable || lavoro.error() == QKeychain::NotImplemented;
    return {.assente = assente, .motivo = motivo(lavoro)};
}

} // namespace

EsitoPortachiavi PortachiaviDiSistema::leggi(const QString& nome)
{
    QKeychain::ReadPasswordJob lavoro(servizio);
    EsitoPortachiavi esito = svolgi(lavoro, nome);
    if (esito.riuscito)
        esito.parola = lavoro.textData();
    return esito;
}

EsitoPortachiavi PortachiaviDiSistema::scrivi(const QString& nome, const QString& parola)
{
    QKeychain::WritePasswordJob lavoro(servizio);
    lavoro.setTextData(parola);
    return svolgi(lavoro, nome);
}

EsitoPortachiavi PortachiaviDiSistema::togli(const QString& nome)
{
    QKeychain::DeletePasswordJob lavoro(servizio);
    return svolgi(lavoro, nome);
}

} // namespace deposito
