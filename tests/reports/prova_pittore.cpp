#include "reports/engine/caratteri.h"
#include "reports/engine/documentoreport.h"
#include "reports/engine/pittore.h"

#include <QPainter>

#include <gmock/gmock.h>

using namespace giacenza::report;
using namespace Qt::StringLiterals;

namespace {

/// A square of 100 mm at ten dots for each millimetre.
QImage carta()
{
    QImage immagine(1000, 1000, QImage::Format_RGB32);
    immagine.setDotsPerMeterX(10000);
    immagine.setDotsPerMeterY(10000);
    immagine.fill(Qt::white);
    return immagine;
}

QImage dipinta(const PaginaReport& pagina)
{
    QImage immagine = carta();
    QPainter pittore(&immagine);
    dipingiPagina(pagina, pittore);
    EXPECT_TRUE(pittore.transform().isIdentity());
    return immagine;
}

/// The smallest area in mm that holds all that is not white.
QRectF inchiostro(const QImage& immagine)
{
    QRect area;
    for (int y = 0; y < immagine.height(); ++y) {
        for (int x = 0; x < immagine.width(); ++x) {
            if (qGray(immagine.pixel(x, y)) < 128)
                area |= QRect(x, y, 1, 1);
        }
    }
    return QRectF(area.x() / 10.0, area.y() / 10.0, area.width() / 10.0, area.height() / 10.0);
}

void aspettaVicina(const QRectF& vera, const QRectF& attesa, double tolleranza)
{
    EXPECT_NEAR(vera.left(), attesa.left(), tolleranza);
    EXPECT_NEAR(vera.top(), attesa.top(), tolleranza);
    EXPECT_NEAR(vera.right(), attesa.right(), tolleranza);
    EXPECT_NEAR(vera.bottom(), attesa.bottom(), tolleranza);
}

TEST(Pittore, unaCorniceStaDoveDice)
{
    const QRectF area(10, 20, 30, 40);
    aspettaVicina(inchiostro(dipinta({CornicePagina{u"cor"_s, area, 0.4, nero, {}}})),
                  area.adjusted(-0.2, -0.2, 0.2, 0.2), 0.11);
    aspettaVicina(inchiostro(dipinta({CornicePagina{u"cor"_s, area, 0.4, QColor(), nero}})), area, 0.11);
}

TEST(Pittore, unFiloELargoQuantoIlTratto)
{
    const QRectF filo = inchiostro(dipinta({CornicePagina{u"lin"_s, {10, 20, 30, 0}, 1, nero, {}}}));
    aspettaVicina(filo, {10, 19.5, 30, 1}, 0.11);
}

TEST(Pittore, unTestoOccupaLaLarghezzaMisurata)
{
    Misuratore misuratore;
    const Carattere carattere{20};
    const auto righe = misuratore.righe(u"HEMINGWAYH"_s, carattere, 90);
    ASSERT_EQ(righe.size(), 1U);
    const TestoPagina testo{u"txt"_s, righe[0].testo, carattere, QRectF(5, 10, righe[0].larghezza, 8), 17};
    const QRectF area = inchiostro(dipinta({testo}));
    EXPECT_NEAR(area.width(), righe[0].larghezza, 1.2); // side bearings of the two outer letters
    EXPECT_NEAR(area.bottom(), 17, 0.3);
}

TEST(Pittore, immagineEBarre)
{
    QImage immagine(10, 10, QImage::Format_RGB32);
    immagine.fill(Qt::black);
    aspettaVicina(inchiostro(dipinta({ImmaginePagina{u"img"_s, {40, 50, 20, 20}, immagine}})),
                  {40, 50, 20, 20}, 0.2);
    const QImage barre = dipinta({BarrePagina{u"bar"_s, {10, 10, 4, 5}, {{10, 10, 1, 5}, {12, 10, 2, 5}}}});
    aspettaVicina(inchiostro(barre), {10, 10, 4, 5}, 0.11);
    EXPECT_EQ(barre.pixelColor(115, 120), QColor(Qt::white));
}

TEST(Documento, siChiedePrimaDiOgniPagina)
{
    const PaginaReport pagina = {CornicePagina{u"cor"_s, {10, 10, 10, 10}, 0.4, QColor(), nero}};
    int chieste = 0;
    DocumentoReport documento(u"Prova"_s, QPageSize(QPageSize::A4), {pagina, pagina},
                              {[&] { return ++chieste < 2; }});
    QImage immagine = carta();
    QPainter pittore(&immagine);
    EXPECT_TRUE(documento.dipingi(0, pittore));
    EXPECT_FALSE(inchiostro(immagine).isEmpty());
    immagine.fill(Qt::white);
    EXPECT_FALSE(documento.dipingi(1, pittore));
    EXPECT_TRUE(inchiostro(immagine).isEmpty());
}

TEST(Documento, laCartaEIntera)
{
    const DocumentoReport documento(u"Prova"_s, QPageSize(QPageSize::A4), {{}}, {[] { return true; }});
    EXPECT_EQ(documento.impaginazione().pageSize().id(), QPageSize::A4);
    EXPECT_EQ(documento.impaginazione().paintRect(QPageLayout::Millimeter), QRectF(0, 0, 210, 297));
}

} // namespace
