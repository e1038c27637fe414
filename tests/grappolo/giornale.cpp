#include "grappolo/giornale.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <stdexcept>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace giacenza::prove {

namespace {

[[noreturn]] void muori(const QFile& file)
{
    throw std::runtime_error(u"%1: %2"_s.arg(file.fileName(), file.errorString()).toStdString());
}

Voce voce(const QJsonObject& riga)
{
    Voce voce;
    voce.postazione = riga[u"postazione"_s].toInt();
    voce.passo = riga[u"passo"_s].toInt();
    voce.lavoro = static_cast<Lavoro>(riga[u"lavoro"_s].toInt());
    voce.esito = static_cast<Esito>(riga[u"esito"_s].toInt());
    voce.millisecondi = riga[u"ms"_s].toInteger();
    voce.orario = riga[u"orario"_s].toString();
    voce.ldv = riga[u"ldv"_s].toString();
    voce.giacenza = riga[u"giacenza"_s].toString();
    voce.giorno = QDate::fromString(riga[u"giorno"_s].toString(), Qt::ISODate);
    voce.nuovaLdv = riga[u"nuova"_s].toString();
    voce.contato = riga[u"contato"_s].toBool();
    for (const QJsonValue messaggio : riga[u"messaggi"_s].toArray())
        voce.messaggi << messaggio.toString();
    voce.stato = riga[u"stato"_s].toString();
    return voce;
}

} // namespace

QString nome(Lavoro lavoro)
{
    switch (lavoro) {
    case Lavoro::registra:
        return u"registra"_s;
    case Lavoro::avvisa:
        return u"avvisa"_s;
    case Lavoro::riconsegna:
        return u"riconsegna"_s;
    case Lavoro::chiude:
        return u"chiude"_s;
    }
    return {};
}

QString nome(Esito esito)
{
    switch (esito) {
    case Esito::iniziato:
        return u"interrotto"_s;
    case Esito::riuscito:
        return u"riuscito"_s;
    case Esito::fallito:
        return u"fallito"_s;
    case Esito::rifiutato:
        return u"rifiutato"_s;
    case Esito::ignoto:
        return u"ignoto"_s;
    }
    return {};
}

bool perGara(const Voce& voce)
{
    const QString detto = voce.stato + voce.messaggi.join(u' ');
    for (const QString& segno : {u"deadlock"_s, u"ostacolate"_s, u"certif"_s, u"giace_numero"_s,
                                 u"giace00f.GIANGI"_s, u"lock wait"_s, u"is locked"_s, u"tiene occupat"_s})
        if (detto.contains(segno, Qt::CaseInsensitive))
            return true;
    return false;
}

Giornale::Giornale(const QString& percorso) : mFile(percorso)
{
    if (!mFile.open(QIODevice::WriteOnly | QIODevice::Append))
        muori(mFile);
}

void Giornale::scrivi(const Voce& voce)
{
    const QJsonObject riga{
        {u"postazione"_s, voce.postazione},
        {u"passo"_s, voce.passo},
        {u"lavoro"_s, static_cast<int>(voce.lavoro)},
        {u"esito"_s, static_cast<int>(voce.esito)},
        {u"ms"_s, voce.millisecondi},
        {u"orario"_s, voce.orario},
        {u"ldv"_s, voce.ldv},
        {u"giacenza"_s, voce.giacenza},
        {u"giorno"_s, voce.giorno.toString(Qt::ISODate)},
        {u"nuova"_s, voce.nuovaLdv},
        {u"contato"_s, voce.contato},
        {u"messaggi"_s, QJsonArray::fromStringList(voce.messaggi)},
        {u"stato"_s, voce.stato},
    };
    const QByteArray byte = QJsonDocument(riga).toJson(QJsonDocument::Compact) + '\n';
    if (mFile.write(byte) != byte.size() || !mFile.flush() || fsync(mFile.handle()) != 0)
        muori(mFile);
}

QList<Voce> leggiGiornale(const QString& percorso)
{
    QFile file(percorso);
    if (!file.open(QIODevice::ReadOnly))
        muori(file);
    QList<Voce> voci;
    while (!file.atEnd()) {
        const QByteArray riga = file.readLine();
        if (riga.endsWith('\n'))
            voci << voce(QJsonDocument::fromJson(riga).object());
    }
    return voci;
}

} // namespace giacenza::prove
