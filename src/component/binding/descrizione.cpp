#include "component/binding/descrizione.h"

#include "component/binding/membri.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

QString nomeTipo(int tipo)
{
    static constexpr const char* nomi[] = {"vuoto", "testo", "intero", "logico", "variante", "Reso"};
    return QString::fromLatin1(nomi[tipo]);
}

QString nomeModo(Modo modo)
{
    static constexpr const char* nomi[] = {"leggi", "scrivi", "metodo", "evento"};
    return QString::fromLatin1(nomi[static_cast<int>(modo) - 1]);
}

QJsonObject descritto(const giacenza_argomento& argomento)
{
    return {{u"nome"_s, QString::fromLatin1(argomento.nome)},
            {u"tipo"_s, nomeTipo(argomento.tipo)},
            {u"perRiferimento"_s, (argomento.segni & GIACENZA_PER_RIFERIMENTO) != 0},
            {u"facoltativo"_s, (argomento.segni & GIACENZA_FACOLTATIVO) != 0}};
}

QJsonObject descritto(const Membro& membro)
{
    QJsonArray argomenti;
    for (const giacenza_argomento& argomento : membro.argomenti)
        argomenti.append(descritto(argomento));
    return {{u"posizione"_s, membro.posizione},
            {u"nome"_s, QString::fromLatin1(membro.nome)},
            {u"id"_s, u"0x%1"_s.arg(membro.id, 8, 16, QChar(u'0'))},
            {u"modo"_s, nomeModo(membro.modo)},
            {u"argomenti"_s, argomenti},
            {u"risultato"_s, nomeTipo(membro.risultato)}};
}

} // namespace

QByteArray descrizione()
{
    QJsonArray elenco;
    for (const Membro& membro : membri())
        elenco.append(descritto(membro));
    QJsonObject reso;
    for (const Costante& costante : costantiReso())
        reso.insert(QString::fromLatin1(costante.nome), costante.valore);
    return QJsonDocument(QJsonObject{{u"classe"_s, QStringLiteral(GIACENZA_CLASSE)},
                                     {u"idClasse"_s, QStringLiteral(GIACENZA_UUID_CLASSE)},
                                     {u"interfaccia"_s, u"_cGiacenza"_s},
                                     {u"eventi"_s, u"__cGiacenza"_s},
                                     {u"idInterfaccia"_s, QStringLiteral(GIACENZA_UUID_INTERFACCIA)},
                                     {u"idEventi"_s, QStringLiteral(GIACENZA_UUID_EVENTI)},
                                     {u"idTipi"_s, QStringLiteral(GIACENZA_UUID_TIPI)},
                                     {u"versione"_s, QStringLiteral(GIACENZA_VERSIONE_LIBRERIA)},
                                     {u"abi"_s, GIACENZA_ABI},
                                     {u"membri"_s, elenco},
                                     {u"enumerazioni"_s, QJsonObject{{u"Reso"_s, reso}}}})
        .toJson();
}

} // namespace giacenza
