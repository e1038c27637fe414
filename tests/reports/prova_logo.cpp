#include "reports/engine/logo.h"

#include <giacenza/Errore.h>

#include <QFile>
#include <QImageReader>
#include <QTemporaryDir>

#include <gmock/gmock.h>

#include <sys/stat.h>

using namespace giacenza::report;
using namespace Qt::StringLiterals;

namespace {

class Logo : public testing::Test
{
protected:
    QString percorso(const QString& nome) const { return mCartella.filePath(nome); }

    void disegna(const QString& nome, QSize misura, QColor colore) const
    {
        QImage immagine(misura, QImage::Format_ARGB32);
        immagine.fill(colore);
        ASSERT_TRUE(immagine.save(percorso(nome), "png"));
    }

    QTemporaryDir mCartella;
};

TEST_F(Logo, unFile)
{
    disegna(u"marchio.png"_s, {30, 10}, Qt::red);
    EXPECT_EQ(leggiLogo(percorso(u"marchio.png"_s)).size(), QSize(30, 10));
}

TEST_F(Logo, unaCartellaConLogoGif)
{
    disegna(u"logo.gif"_s, {30, 10}, Qt::red);
    EXPECT_EQ(leggiLogo(mCartella.path()).size(), QSize(30, 10));
    EXPECT_EQ(leggiLogo(mCartella.path() + u'/').size(), QSize(30, 10));
    EXPECT_EQ(leggiLogo(mCartella.path().replace(u'/', u'\\')).size(), QSize(30, 10));
}

TEST_F(Logo, nessuno)
{
    EXPECT_TRUE(leggiLogo({}).isNull());
    EXPECT_TRUE(leggiLogo(mCartella.path()).isNull());
    EXPECT_TRUE(leggiLogo(percorso(u"manca.png"_s)).isNull());
}

TEST_F(Logo, rotto)
{
    QFile file(percorso(u"logo.gif"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("GIF89a e poi niente");
    file.close();
    EXPECT_TRUE(leggiLogo(mCartella.path()).isNull());
}

TEST_F(Logo, trasparenteDiventaBianco)
{
    disegna(u"logo.gif"_s, {10, 10}, Qt::transparent);
    const QImage logo = leggiLogo(mCartella.path());
    EXPECT_FALSE(logo.hasAlphaChannel());
    EXPECT_EQ(logo.pixelColor(5, 5), QColor(Qt::white));
}

TEST_F(Logo, enormeSiRiduce)
{
    disegna(u"logo.gif"_s, {4000, 1000}, Qt::blue);
    EXPECT_EQ(leggiLogo(mCartella.path()).size(), QSize(1400, 350));
}

TEST_F(Logo, unaCondutturaNonSiAspetta)
{
    ASSERT_EQ(::mkfifo(QFile::encodeName(percorso(u"logo.gif"_s)).constData(), 0600), 0);
    EXPECT_THROW(leggiLogo(mCartella.path()), giacenza::Errore);
    EXPECT_THROW(leggiLogo(percorso(u"logo.gif"_s)), giacenza::Errore);
}

TEST_F(Logo, oltreVentiMegabyteSiRifiuta)
{
    disegna(u"logo.gif"_s, {30, 10}, Qt::red);
    QFile file(percorso(u"logo.gif"_s));
    ASSERT_TRUE(file.resize(20'000'000));
    EXPECT_EQ(leggiLogo(mCartella.path()).size(), QSize(30, 10));
    ASSERT_TRUE(file.resize(20'000'001));
    EXPECT_THROW(leggiLogo(mCartella.path()), giacenza::Errore);
}

TEST_F(Logo, oltreCinquantaMilioniDiPuntiSiRifiuta)
{
    const auto grande = [&](QSize misura) {
        QImage immagine(misura, QImage::Format_Mono);
        immagine.fill(0);
        ASSERT_TRUE(immagine.save(percorso(u"logo.gif"_s), "png"));
    };
    grande({10'000, 5'000});
    EXPECT_EQ(leggiLogo(mCartella.path()).size(), QSize(1400, 700));
    const int limite = QImageReader::allocationLimit();
    grande({10'000, 5'001});
    try {
        leggiLogo(mCartella.path());
        ADD_FAILURE() << "accepted";
    } catch (const giacenza::Errore& errore) {
        EXPECT_EQ(errore.testo(),
                  u"Il logo \"%1\" non è stato letto: ha 10000 per 5001 punti, più di 50 milioni."_s.arg(
                      percorso(u"logo.gif"_s)));
    }
    EXPECT_EQ(QImageReader::allocationLimit(), limite);
}

} // namespace
