#include "comune/archivio.h"

#include "base/limitefile.h"
#include "support/stampa.h"

#include <giacenza/Errore.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace giacenza;
using namespace giacenza::comune;
using namespace Qt::StringLiterals;

namespace {

class Archivio : public testing::Test
{
protected:
    QStringList contenuto(const QString& cartella = u"documenti"_s) const
    {
        return QDir(mCartella.filePath(cartella)).entryList(QDir::Files | QDir::Hidden, QDir::Name);
    }

    QByteArray leggi(const QString& nome) const
    {
        QFile file(mDocumenti + u'/' + nome);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    }

    QString errore(const QString& nome, const QByteArray& byte = "%PDF-") const
    {
        try {
            archivia(mDocumenti, nome, byte);
        } catch (const Errore& e) {
            return e.testo();
        }
        return {};
    }

    QTemporaryDir mCartella;
    QString mDocumenti = mCartella.filePath(u"documenti"_s);
};

TEST_F(Archivio, creaLaCartellaEScrive)
{
    EXPECT_EQ(archivia(mDocumenti, u"1234_2015"_s, "%PDF-uno"), mDocumenti + u"/1234_2015.pdf"_s);
    EXPECT_EQ(contenuto(), QStringList{u"1234_2015.pdf"_s});
    EXPECT_EQ(leggi(u"1234_2015.pdf"_s), "%PDF-uno");
}

TEST_F(Archivio, laRistampaNonCopreMai)
{
    archivia(mDocumenti, u"1234_2015"_s, "uno");
    EXPECT_EQ(archivia(mDocumenti, u"1234_2015"_s, "due"), mDocumenti + u"/1234_2015-2.pdf"_s);
    EXPECT_EQ(archivia(mDocumenti, u"1234_2015"_s, "tre"), mDocumenti + u"/1234_2015-3.pdf"_s);
    EXPECT_EQ(archivia(mDocumenti, u"1234_2015_buonfine"_s, "fine"),
              mDocumenti + u"/1234_2015_buonfine.pdf"_s);
    EXPECT_EQ(leggi(u"1234_2015.pdf"_s), "uno");
    EXPECT_EQ(leggi(u"1234_2015-2.pdf"_s), "due");
    EXPECT_EQ(leggi(u"1234_2015-3.pdf"_s), "tre");
    EXPECT_EQ(contenuto().size(), 4);
}

TEST_F(Archivio, neancheUnaCartellaOUnCollegamentoConQuelNomeSiCopre)
{
    ASSERT_TRUE(QDir(mDocumenti).mkpath(u"1_2015.pdf"_s));
    ASSERT_TRUE(QFile::link(mDocumenti + u"/assente"_s, mDocumenti + u"/1_2015-2.pdf"_s));
    EXPECT_EQ(archivia(mDocumenti, u"1_2015"_s, "uno"), mDocumenti + u"/1_2015-3.pdf"_s);
}

TEST_F(Archivio, siLeggeComeOgniAltroFile)
{
    archivia(mDocumenti, u"1_2015"_s, "uno");
    EXPECT_TRUE(QFile::permissions(mDocumenti + u"/1_2015.pdf"_s) & QFile::ReadOwner);
    EXPECT_TRUE(QFile::permissions(mDocumenti + u"/1_2015.pdf"_s) & QFile::WriteOwner);
}

TEST_F(Archivio, discoPienoAMetaScrittura)
{
    const LimiteFile limite(3000);
    EXPECT_EQ(
        errore(u"1234_2015"_s, QByteArray(10000, 'x')),
        u"Impossibile scrivere il documento \"%1/1234_2015.pdf\": il file supera la misura permessa."_s.arg(
            mDocumenti));
    EXPECT_EQ(contenuto(), QStringList());
}

TEST_F(Archivio, cartellaCheNonSiCrea)
{
    QFile file(mCartella.filePath(u"documenti"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_THAT(errore(u"1234_2015"_s).toStdString(),
                testing::StartsWith("Impossibile creare la cartella dei documenti \"" +
                                    mDocumenti.toStdString() + "\": "));
}

TEST_F(Archivio, cartellaDoveNonSiScrive)
{
    // Nobody writes there, the administrator neither.
    try {
        archivia(u"/proc/self"_s, u"1234_2015"_s, "uno");
        ADD_FAILURE() << "scritto in /proc";
    } catch (const Errore& e) {
        EXPECT_THAT(e.testo().toStdString(),
                    testing::StartsWith("Impossibile scrivere il documento \"/proc/self/1234_2015.pdf\": "));
    }
}

TEST(NomeSicuro, tabella)
{
    const std::pair<QString, QString> casi[] = {
        {u"1234_2015"_s, u"1234_2015"_s},
        {u"12/34_2015"_s, u"12-34_2015"_s},
        {u"../../etc/passwd"_s, u"-.-..-etc-passwd"_s},
        {u"a\\b:c*d?e\"f<g>h|i\nl"_s, u"a-b-c-d-e-f-g-h-i-l"_s},
        {u".nascosto"_s, u"-nascosto"_s},
        {u"perché 1"_s, u"perché 1"_s},
        {u"📦"_s, u"--"_s},
        {QString(), u"documento"_s},
    };
    for (const auto& [chiave, atteso] : casi)
        EXPECT_EQ(nomeSicuro(chiave), atteso);
    EXPECT_LE(nomeSicuro(QString(500, u'è')).toUtf8().size(), 200);
}

} // namespace
