// The descriptor of a class: what is written, and what is refused when read.

#include "component/descriptor/libreria.h"

#include "support/stampa.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace giacenza;

namespace {

const QString classe = u"giacenza.cGiacenza"_s;
const QByteArray detto = R"({"classe":"giacenza.cGiacenza","versione":"0.1.0","abi":1})";
const QString libreria = u"/usr/lib/libgiacenza.so.0"_s;

class DescrittoreProva : public testing::Test
{
protected:
    QString file() const { return mCartella.filePath(u"giacenza.cgiacenza.json"_s); }

    void metti(const QByteArray& byte, int permessi = 0644) const
    {
        QFile scritto(file());
        ASSERT_TRUE(scritto.open(QIODevice::WriteOnly));
        scritto.write(byte);
        scritto.close();
        ASSERT_EQ(::chmod(QFile::encodeName(file()).constData(), static_cast<mode_t>(permessi)), 0);
    }

    /// The reason of a refusal, without the words around it.
    QString rifiuto() const
    {
        try {
            return leggiDescrittore(mCartella.path(), classe) ? u"letto"_s : u"non c'è"_s;
        } catch (const ErroreDescrittore& errore) {
            EXPECT_EQ(errore.motivo(), ErroreDescrittore::malfatto);
            const QString testa = u"Il descrittore \"%1\" non è in ordine: "_s.arg(file());
            const QString coda = u". Registrare di nuovo la classe con giacenza-registra."_s;
            QString testo = errore.testo();
            return testo.startsWith(testa) && testo.endsWith(coda)
                       ? testo.mid(testa.size(), testo.size() - testa.size() - coda.size())
                       : testo;
        }
    }

    QTemporaryDir mCartella;
};

QByteArray con(const QString& chiave, const QJsonValue& valore)
{
    QJsonObject tutto = QJsonDocument::fromJson(detto).object();
    tutto.insert(u"libreria"_s, libreria);
    tutto.insert(chiave, valore);
    return QJsonDocument(tutto).toJson();
}

} // namespace

TEST_F(DescrittoreProva, quelCheSiScriveSiLegge)
{
    const QString cartella = mCartella.filePath(u"a/giacenza/classi"_s);
    const Descrittore scritto = scriviDescrittore(cartella, detto, libreria);
    EXPECT_EQ(scritto.file, cartella + u"/giacenza.cgiacenza.json"_s);
    EXPECT_EQ(QFile(scritto.file).permissions() & (QFileDevice::ReadOther | QFileDevice::WriteOther |
                                                   QFileDevice::WriteGroup | QFileDevice::WriteOwner),
              QFileDevice::ReadOther | QFileDevice::WriteOwner);
    EXPECT_EQ(QDir(cartella).entryList(QDir::Files | QDir::Hidden).size(), 1);
    for (const QString& nome : {classe, classe.toUpper(), classe.toLower()}) {
        const auto letto = leggiDescrittore(cartella, nome);
        ASSERT_TRUE(letto);
        EXPECT_EQ(letto->classe, classe);
        EXPECT_EQ(letto->libreria, libreria);
        EXPECT_EQ(letto->versione, u"0.1.0"_s);
        EXPECT_EQ(letto->contenuto, scritto.contenuto);
        EXPECT_EQ(letto->contenuto[u"abi"_s], 1);
    }
}

TEST_F(DescrittoreProva, ilPrimoCheCEVale)
{
    const QString uno = mCartella.filePath(u"uno"_s), due = mCartella.filePath(u"due"_s);
    EXPECT_FALSE(cercaDescrittore({uno, due}, classe));
    scriviDescrittore(due, detto, libreria);
    EXPECT_EQ(cercaDescrittore({uno, due}, classe)->file, due + u"/giacenza.cgiacenza.json"_s);
    scriviDescrittore(uno, detto, libreria);
    EXPECT_EQ(cercaDescrittore({uno, due}, classe)->file, uno + u"/giacenza.cgiacenza.json"_s);
}

TEST_F(DescrittoreProva, cioCheNonEUnDescrittore)
{
    EXPECT_EQ(rifiuto(), u"non c'è"_s);
    metti("");
    EXPECT_EQ(rifiuto(), u"non è JSON (byte 0)"_s);
    metti("{\"classe\":");
    EXPECT_EQ(rifiuto(), u"non è JSON (byte 10)"_s);
    metti("[1,2]");
    EXPECT_EQ(rifiuto(), u"non è un oggetto JSON"_s);
    metti(QByteArray(50'000, '['));
    EXPECT_THAT(rifiuto().toStdString(), testing::StartsWith("non è JSON (byte "));
    metti(QByteArray("\x7F"
                     "ELF\0\1\2",
                     7));
    EXPECT_THAT(rifiuto().toStdString(), testing::StartsWith("non è JSON (byte "));
    metti("{}");
    EXPECT_EQ(rifiuto(), u"manca \"classe\""_s);
    metti(detto);
    EXPECT_EQ(rifiuto(), u"manca \"libreria\""_s);
}

TEST_F(DescrittoreProva, valoriCheNonVannoBene)
{
    metti(con(u"classe"_s, u"altra.Classe"_s));
    EXPECT_EQ(rifiuto(), u"è della classe \"altra.Classe\""_s);
    metti(con(u"classe"_s, 5));
    EXPECT_EQ(rifiuto(), u"manca \"classe\""_s);
    metti(con(u"libreria"_s, QJsonArray{u"/x"_s}));
    EXPECT_EQ(rifiuto(), u"manca \"libreria\""_s);
    metti(con(u"libreria"_s, u"/x\0/y"_s));
    EXPECT_EQ(rifiuto(), u"manca \"libreria\""_s);
    for (const QString& relativo : {u"libgiacenza.so"_s, u"../libgiacenza.so"_s, u"./x"_s}) {
        metti(con(u"libreria"_s, relativo));
        EXPECT_EQ(rifiuto(), u"il percorso della libreria non è assoluto"_s);
    }
    for (const QString& versione :
         {u"1"_s, u"1.2"_s, u"a.b.c"_s, u"1.2.3-rc"_s, u"1.2.3\n"_s, u"999999999999.0.0"_s}) {
        metti(con(u"versione"_s, versione));
        EXPECT_EQ(rifiuto(), u"la versione \"%1\" non è una versione"_s.arg(versione));
    }
    metti(con(u"altro"_s, u"che una versione dopo aggiunge"_s));
    EXPECT_EQ(rifiuto(), u"letto"_s);
}

TEST_F(DescrittoreProva, fileCheNonSonoFile)
{
    ASSERT_TRUE(QDir().mkpath(file()));
    EXPECT_EQ(rifiuto(), u"Il file \"%1\" non è stato letto: non è un file normale."_s.arg(file()));
    ASSERT_TRUE(QDir().rmdir(file()));
    ASSERT_EQ(::mkfifo(QFile::encodeName(file()).constData(), 0600), 0);
    EXPECT_EQ(rifiuto(), u"Il file \"%1\" non è stato letto: non è un file normale."_s.arg(file()));
    ASSERT_TRUE(QFile::remove(file()));
    metti(con(u"lungo"_s, QString(200'000, u'x')));
    EXPECT_EQ(rifiuto(), u"Il file \"%1\" non è stato letto: supera 100000 byte."_s.arg(file()));
    ASSERT_TRUE(QFile::remove(file()));
    ASSERT_TRUE(QFile::link(mCartella.filePath(u"gone"_s), file()));
    EXPECT_EQ(rifiuto(), u"è un collegamento a un file che non c'è"_s);
}

TEST_F(DescrittoreProva, chiLoPuoScrivere)
{
    metti(con(u"abi"_s, 1), 0666);
    EXPECT_EQ(rifiuto(), u"chiunque può scriverlo"_s);
    metti(con(u"abi"_s, 1), 0664);
    const QString delGruppo = u"il suo gruppo può scriverlo"_s;
    if (::geteuid() != 0) {
        EXPECT_EQ(rifiuto(), delGruppo);
        return;
    }
    // Only an administrator can give a file away, and become its owner.
    EXPECT_EQ(rifiuto(), u"letto"_s) << "the administrator's, with a group of his own";
    const QByteArray nome = QFile::encodeName(file());
    ASSERT_EQ(::chown(nome.constData(), 12345, 12345), 0);
    EXPECT_EQ(rifiuto(), u"è di un altro utente"_s);
    ASSERT_EQ(::chmod(QFile::encodeName(mCartella.path()).constData(), 0755), 0);
    ASSERT_EQ(::seteuid(12345), 0);
    const QString suo = rifiuto();
    ASSERT_EQ(::seteuid(0), 0);
    EXPECT_EQ(suo, delGruppo);
    ASSERT_EQ(::chmod(nome.constData(), 0644), 0);
    ASSERT_EQ(::seteuid(12345), 0);
    const QString soloSuo = rifiuto();
    ASSERT_EQ(::seteuid(0), 0);
    EXPECT_EQ(soloSuo, u"letto"_s);
}

TEST_F(DescrittoreProva, nomiDiClasseCheNonLoSono)
{
    for (const QString& nome :
         {u""_s, u"../../etc/passwd"_s, u"a/b"_s, u"a..b"_s, u".a"_s, u"a."_s, u"1a"_s, u"a b"_s, u"a\n"_s,
          u"è"_s, u"a\0b"_s, QString(61, u'a') + u'a', QString(u"a."_s).repeated(80) + u'a'}) {
        try {
            leggiDescrittore(mCartella.path(), nome);
            ADD_FAILURE() << nome.toStdString();
        } catch (const ErroreDescrittore& errore) {
            EXPECT_EQ(errore.testo(), u"\"%1\" non è il nome di una classe."_s.arg(nome.left(120)));
        }
    }
}

TEST_F(DescrittoreProva, cioCheNonSiScrive)
{
    metti("ostacolo");
    try {
        scriviDescrittore(file(), detto, libreria);
        ADD_FAILURE();
    } catch (const ErroreDescrittore& errore) {
        EXPECT_EQ(errore.motivo(), ErroreDescrittore::scrittura);
        EXPECT_EQ(errore.testo(),
                  u"Il descrittore \"%1/giacenza.cgiacenza.json\" non è stato scritto: la cartella non si "
                  "crea."_s.arg(file()));
    }
    for (const QByteArray& storto : {QByteArray(), QByteArray("{}"), QByteArray("[]")})
        EXPECT_THROW(scriviDescrittore(mCartella.filePath(u"nuova"_s), storto, libreria), ErroreDescrittore);
    EXPECT_THROW(scriviDescrittore(mCartella.filePath(u"nuova"_s), detto, u"relativa.so"_s),
                 ErroreDescrittore);
    EXPECT_FALSE(QFileInfo::exists(mCartella.filePath(u"nuova"_s)));
}

TEST(DescrittoreVersioni, stessaMaggiore)
{
    EXPECT_TRUE(stessaMaggiore(u"1.2.3"_s, u"1.0.0"_s));
    EXPECT_TRUE(stessaMaggiore(u"0.1.0"_s, u"0.9.9"_s));
    EXPECT_FALSE(stessaMaggiore(u"1.2.3"_s, u"2.2.3"_s));
    EXPECT_FALSE(stessaMaggiore(u"1"_s, u"1"_s));
    EXPECT_FALSE(stessaMaggiore({}, {}));
}

TEST(DescrittoreCartelle, nelLoroOrdine)
{
    qputenv("XDG_DATA_HOME", "/casa/dati");
    qputenv("XDG_DATA_DIRS", "/uno:/due");
    qputenv("DESTDIR", "/radice");
    const QStringList cartelle = cartelleDescrittori();
    const QString utente = cartellaUtente(), sistema = cartellaSistema();
    for (const char* variabile : {"XDG_DATA_HOME", "XDG_DATA_DIRS", "DESTDIR"})
        qunsetenv(variabile);
    EXPECT_EQ(cartelle.mid(0, 3), (QStringList{u"/casa/dati/giacenza/classi"_s, u"/uno/giacenza/classi"_s,
                                               u"/due/giacenza/classi"_s}));
    EXPECT_EQ(utente, cartelle[0]);
    EXPECT_EQ(sistema, u"/radice"_s + cartelle.constLast());
    EXPECT_EQ(cartelle.size(), 4);
}
