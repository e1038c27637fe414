#include "reports/engine/logo.h"

#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

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

} // namespace
