#include "base/filelimitato.h"

#include "base/cartellaprova.h"

#include <giacenza/Errore.h>

#include <sys/stat.h>

using giacenza::leggiFileLimitato;

namespace {

class FileLimitato : public giacenza::prove::CartellaProva
{
protected:
    /// The reason for which a file is refused.
    QString rifiuto(const QString& nome, qint64 limite = 100) const
    {
        try {
            leggiFileLimitato(nome.startsWith(u'/') ? nome : percorso(nome), limite);
        } catch (const giacenza::Errore& errore) {
            return errore.testo();
        }
        return u"accettato"_s;
    }
    QString motivo(const QString& nome, const QString& perche) const
    {
        return u"Il file \"%1\" non è stato letto: %2."_s.arg(percorso(nome), perche);
    }
    void conduttura(const QString& nome) const
    {
        ASSERT_EQ(::mkfifo(QFile::encodeName(percorso(nome)).constData(), 0600), 0);
    }
};

const QString nonNormale = u"non è un file normale"_s;

} // namespace

TEST_F(FileLimitato, unFileSiLeggeFinoAlLimiteCompreso)
{
    scrivi(u"vuoto"_s, {});
    EXPECT_EQ(leggiFileLimitato(percorso(u"vuoto"_s), 0), QByteArray());
    const QByteArray grande(200'000, 'x');
    scrivi(u"grande"_s, grande);
    EXPECT_EQ(leggiFileLimitato(percorso(u"grande"_s), grande.size()), grande);
    EXPECT_EQ(rifiuto(u"grande"_s, grande.size() - 1), motivo(u"grande"_s, u"supera 199999 byte"_s));
    ASSERT_TRUE(QFile::link(percorso(u"grande"_s), percorso(u"legame"_s)));
    EXPECT_EQ(leggiFileLimitato(percorso(u"legame"_s), grande.size()), grande);
}

TEST_F(FileLimitato, ciòCheNonCENonEUnErrore)
{
    scrivi(u"file"_s, "x");
    ASSERT_TRUE(QFile::link(percorso(u"altrove"_s), percorso(u"sospeso"_s)));
    for (const QString& nome : {u"manca"_s, u"manca/dentro"_s, u"file/dentro"_s, u"sospeso"_s})
        EXPECT_EQ(leggiFileLimitato(percorso(nome), 100), std::nullopt) << nome.toStdString();
    EXPECT_EQ(leggiFileLimitato({}, 100), std::nullopt);
}

TEST_F(FileLimitato, unaCondutturaNonSiAspetta)
{
    conduttura(u"tubo"_s);
    EXPECT_EQ(rifiuto(u"tubo"_s), motivo(u"tubo"_s, nonNormale));
    ASSERT_TRUE(QFile::link(percorso(u"tubo"_s), percorso(u"legame"_s)));
    EXPECT_EQ(rifiuto(u"legame"_s), motivo(u"legame"_s, nonNormale));
}

TEST_F(FileLimitato, cartelleEDispositiviSiRifiutano)
{
    ASSERT_TRUE(QDir().mkpath(percorso(u"cartella"_s)));
    EXPECT_EQ(rifiuto(u"cartella"_s), motivo(u"cartella"_s, nonNormale));
    ASSERT_TRUE(QFile::link(u"/dev/zero"_s, percorso(u"zero"_s)));
    EXPECT_EQ(rifiuto(u"zero"_s), motivo(u"zero"_s, nonNormale));
    ASSERT_TRUE(QFile::link(u"zero2"_s, percorso(u"zero2"_s)));
    EXPECT_TRUE(rifiuto(u"zero2"_s).startsWith(motivo(u"zero2"_s, u"il sistema dà l'errore "_s).chopped(1)))
        << "a link to itself";
}

TEST_F(FileLimitato, unFileEnormeNonSiLegge)
{
    QFile enorme(percorso(u"enorme"_s));
    ASSERT_TRUE(enorme.open(QIODevice::WriteOnly) && enorme.resize(qint64{1} << 40));
    EXPECT_EQ(rifiuto(u"enorme"_s, 1'000'000), motivo(u"enorme"_s, u"supera 1000000 byte"_s));
}

TEST_F(FileLimitato, diUnFileCheHaPiuDiQuantoDiceNonSiPrendeDiPiu)
{
    // The system's own files are plain, say that they are empty, and hold something: like one that grows
    // between the look and the reading.
    EXPECT_EQ(rifiuto(u"/proc/self/maps"_s, 10),
              u"Il file \"/proc/self/maps\" non è stato letto: supera 10 byte."_s);
}
