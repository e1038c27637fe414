// The table of members, against what is published and against what the class really declares.

#include "component/binding/descrizione.h"
#include "component/binding/membri.h"

#include "support/stampa.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMetaEnum>
#include <QMetaMethod>

#include <gmock/gmock.h>

using namespace Qt::StringLiterals;
using namespace giacenza;

namespace {

const QMetaObject& tipo = cGiacenza::staticMetaObject;

QString scritto(const giacenza_argomento& argomento)
{
    static constexpr const char* tipi[] = {"vuoto", "testo", "intero", "logico", "variante", "Reso"};
    QString riga = QLatin1StringView(tipi[argomento.tipo]);
    if (argomento.segni & GIACENZA_PER_RIFERIMENTO)
        riga += u" per riferimento"_s;
    if (argomento.segni & GIACENZA_FACOLTATIVO)
        riga += u" facoltativo"_s;
    return riga + u' ' + QLatin1StringView(argomento.nome);
}

/// A row of the table as one line.
QString scritto(const Membro& membro)
{
    static constexpr const char* modi[] = {"", "get", "let", "metodo", "evento"};
    QStringList argomenti;
    for (const giacenza_argomento& argomento : membro.argomenti)
        argomenti << scritto(argomento);
    return u"%1 %2 0x%3 %4(%5)%6"_s.arg(membro.posizione)
        .arg(QLatin1StringView(membro.nome), QString::number(membro.id, 16).toUpper(),
             QLatin1StringView(modi[static_cast<int>(membro.modo)]), argomenti.join(u", "_s),
             membro.risultato == GIACENZA_VUOTO   ? QString()
             : membro.risultato == GIACENZA_TESTO ? u" -> testo"_s
                                                  : u" -> variante"_s);
}

QByteArray tipoQt(int quale)
{
    switch (quale) {
    case GIACENZA_VUOTO:
        return "void";
    case GIACENZA_TESTO:
        return "QString";
    case GIACENZA_VARIANTE:
        return "QVariant";
    default:
        return "giacenza::cGiacenza::Reso";
    }
}

/// How the class declares a member.
QByteArray firma(const Membro& membro)
{
    QByteArrayList tipi;
    for (const giacenza_argomento& argomento : membro.argomenti)
        tipi << tipoQt(argomento.tipo);
    return tipoQt(membro.risultato) + ' ' + (membro.modo == Modo::scrivi ? "set" : "") + membro.nome + '(' +
           tipi.join(',') + ')';
}

QByteArrayList firme(QMetaMethod::MethodType quali)
{
    QByteArrayList tutte;
    for (int i = tipo.methodOffset(); i < tipo.methodCount(); ++i) {
        const QMetaMethod metodo = tipo.method(i);
        // A clone is the same method with its optional argument left out.
        if (metodo.methodType() == quali && !(metodo.attributes() & QMetaMethod::Cloned))
            tutte << QByteArray(metodo.typeName()) + ' ' + metodo.methodSignature();
    }
    return tutte;
}

} // namespace

TEST(Membri, laTabellaRigaPerRiga)
{
    QStringList righe;
    for (const Membro& membro : membri())
        righe << scritto(membro);
    EXPECT_EQ(righe,
              (QStringList{
                  u"1 PercorsoDatabase 0x68030003 get() -> testo"_s,
                  u"2 PercorsoDatabase 0x68030003 let(testo percorso)"_s,
                  u"3 PercorsoFileIni 0x68030002 get() -> testo"_s,
                  u"4 PercorsoFileIni 0x68030002 let(testo percorso)"_s,
                  u"5 NuovaGiacenza 0x60030005 metodo()"_s,
                  u"6 NuovaGiacenzaEXT 0x60030006 metodo(testo per riferimento strLdv, testo per riferimento "
                  "strDataLdv, testo per riferimento strFiliale, testo per riferimento strCliente)"_s,
                  u"7 PercorsoLogoIntestazione 0x68030001 let(testo percorso)"_s,
                  u"8 MostraRiconsegna 0x60030008 metodo()"_s,
                  u"9 TipoReso 0x68030000 let(Reso tipo)"_s,
                  u"10 ConsultaGiacenza 0x6003000B metodo()"_s,
                  u"11 Esegui 0x6003000C metodo(testo per riferimento Azione, variante per riferimento "
                  "facoltativo Arg) -> variante"_s,
                  u"1 fine 0x1 evento()"_s,
              }));
}

TEST(Membri, ogniRigaEDichiarataDallaClasseENientAltro)
{
    QByteArrayList metodi, eventi;
    for (const Membro& membro : membri())
        (membro.modo == Modo::evento ? eventi : metodi) << firma(membro);
    EXPECT_THAT(firme(QMetaMethod::Method), testing::UnorderedElementsAreArray(metodi));
    EXPECT_EQ(firme(QMetaMethod::Signal), eventi);
    EXPECT_EQ(firme(QMetaMethod::Slot), QByteArrayList());
    EXPECT_EQ(tipo.propertyCount(), QObject::staticMetaObject.propertyCount());
}

TEST(Membri, iNomiDegliArgomentiSonoQuelliDellaClasse)
{
    for (const Membro& membro : membri()) {
        const int indice = tipo.indexOfMethod(firma(membro).mid(firma(membro).indexOf(' ') + 1).constData());
        ASSERT_GE(indice, 0) << membro.nome;
        QByteArrayList nomi;
        for (const giacenza_argomento& argomento : membro.argomenti)
            nomi << argomento.nome;
        EXPECT_EQ(tipo.method(indice).parameterNames(), nomi) << membro.nome;
    }
}

TEST(Membri, iNumeriSonoQuelliDellEnumerazione)
{
    const QMetaEnum numeri = tipo.enumerator(tipo.indexOfEnumerator("IdMembro"));
    QMap<QString, quint32> dichiarati, pubblicati;
    for (int i = 0; i < numeri.keyCount(); ++i)
        dichiarati.insert(QString::fromLatin1(numeri.key(i)), static_cast<quint32>(numeri.value(i)));
    for (const Membro& membro : membri())
        if (membro.modo != Modo::evento)
            pubblicati.insert(u"Id"_s + QLatin1StringView(membro.nome), membro.id);
    EXPECT_EQ(pubblicati, dichiarati);
    EXPECT_EQ(pubblicati.size(), 9);
}

TEST(Membri, iNumeriDelleIntestazioniSonoGliStessi)
{
    EXPECT_EQ(GIACENZA_ID_TIPO_RESO, cGiacenza::IdTipoReso);
    EXPECT_EQ(GIACENZA_ID_PERCORSO_LOGO_INTESTAZIONE, cGiacenza::IdPercorsoLogoIntestazione);
    EXPECT_EQ(GIACENZA_ID_PERCORSO_FILE_INI, cGiacenza::IdPercorsoFileIni);
    EXPECT_EQ(GIACENZA_ID_PERCORSO_DATABASE, cGiacenza::IdPercorsoDatabase);
    EXPECT_EQ(GIACENZA_ID_NUOVA_GIACENZA, cGiacenza::IdNuovaGiacenza);
    EXPECT_EQ(GIACENZA_ID_NUOVA_GIACENZA_EXT, cGiacenza::IdNuovaGiacenzaEXT);
    EXPECT_EQ(GIACENZA_ID_MOSTRA_RICONSEGNA, cGiacenza::IdMostraRiconsegna);
    EXPECT_EQ(GIACENZA_ID_CONSULTA_GIACENZA, cGiacenza::IdConsultaGiacenza);
    EXPECT_EQ(GIACENZA_ID_ESEGUI, cGiacenza::IdEsegui);
}

TEST(Membri, leCostantiDiReso)
{
    const QMetaEnum reso = tipo.enumerator(tipo.indexOfEnumerator("Reso"));
    ASSERT_EQ(costantiReso().size(), 2U);
    EXPECT_EQ(reso.keyCount(), 2);
    for (std::size_t i = 0; i < 2; ++i) {
        EXPECT_STREQ(costantiReso()[i].nome, reso.key(static_cast<int>(i)));
        EXPECT_EQ(costantiReso()[i].valore, reso.value(static_cast<int>(i)));
    }
    EXPECT_STREQ(costantiReso()[0].nome, "ResoDestinatario");
    EXPECT_STREQ(costantiReso()[1].nome, "ResoMittente");
    EXPECT_EQ(GIACENZA_RESO_DESTINATARIO, 1);
    EXPECT_EQ(GIACENZA_RESO_MITTENTE, 2);
}

TEST(Membri, laDescrizioneDiceTutto)
{
    const QJsonObject tutto = QJsonDocument::fromJson(descrizione()).object();
    EXPECT_EQ(tutto.keys(), (QStringList{u"abi"_s, u"classe"_s, u"enumerazioni"_s, u"eventi"_s, u"idClasse"_s,
                                         u"idEventi"_s, u"idInterfaccia"_s, u"idTipi"_s, u"interfaccia"_s,
                                         u"membri"_s, u"versione"_s}));
    EXPECT_EQ(tutto[u"interfaccia"_s], u"_cGiacenza"_s);
    EXPECT_EQ(tutto[u"eventi"_s], u"__cGiacenza"_s);
    EXPECT_EQ(tutto[u"classe"_s], u"giacenza.cGiacenza"_s);
    EXPECT_EQ(tutto[u"idClasse"_s], u"b83c3226-1c9b-4820-a0fb-9bf880a7f6c3"_s);
    EXPECT_EQ(tutto[u"idInterfaccia"_s], u"1be49659-3503-4ac1-bfa3-5115650c9d8d"_s);
    EXPECT_EQ(tutto[u"idEventi"_s], u"cc7e2d01-ef33-4096-9803-b79f8071a9a3"_s);
    EXPECT_EQ(tutto[u"idTipi"_s], u"26e3b8ab-2aa5-486c-88b1-d3609b9c6439"_s);
    EXPECT_EQ(tutto[u"abi"_s], 1);
    EXPECT_EQ(tutto[u"enumerazioni"_s],
              (QJsonObject{{u"Reso"_s, QJsonObject{{u"ResoDestinatario"_s, 1}, {u"ResoMittente"_s, 2}}}}));
    const QJsonArray elenco = tutto[u"membri"_s].toArray();
    EXPECT_EQ(elenco.size(), 12);
    EXPECT_EQ(elenco[10], (QJsonObject{{u"posizione"_s, 11},
                                       {u"nome"_s, u"Esegui"_s},
                                       {u"id"_s, u"0x6003000c"_s},
                                       {u"modo"_s, u"metodo"_s},
                                       {u"argomenti"_s, QJsonArray{QJsonObject{{u"nome"_s, u"Azione"_s},
                                                                               {u"tipo"_s, u"testo"_s},
                                                                               {u"perRiferimento"_s, true},
                                                                               {u"facoltativo"_s, false}},
                                                                   QJsonObject{{u"nome"_s, u"Arg"_s},
                                                                               {u"tipo"_s, u"variante"_s},
                                                                               {u"perRiferimento"_s, true},
                                                                               {u"facoltativo"_s, true}}}},
                                       {u"risultato"_s, u"variante"_s}}));
    EXPECT_EQ(elenco[11], (QJsonObject{{u"posizione"_s, 1},
                                       {u"nome"_s, u"fine"_s},
                                       {u"id"_s, u"0x00000001"_s},
                                       {u"modo"_s, u"evento"_s},
                                       {u"argomenti"_s, QJsonArray()},
                                       {u"risultato"_s, u"vuoto"_s}}));
}
