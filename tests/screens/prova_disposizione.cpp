#include "screens/campi.h"
#include "screens/misure.h"
#include "screens/tutteleschermate.h"
#include "support/stampa.h"
#include "support/trova.h"
#include "widgets/areaforma.h"

#include <gmock/gmock.h>

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScreen>
#include <QScrollBar>
#include <QSet>
#include <QTest>

#include <cmath>

using namespace Qt::StringLiterals;
using namespace giacenza;
using namespace giacenza::prove;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

namespace {

constexpr QSize grande(1366, 720);
constexpr QSize piccolo(1024, 700);
/// 1920×1080 at 200 %, without the borders of a window.
constexpr QSize ingrandito(960, 500);

const char* const schermate[] = {"frmGiacenza", "frmGestGia", "frmRiconsegna"};

/// The screens in a size of the font, in points.
class Disposizione : public testing::TestWithParam<std::tuple<const char*, int>>
{
protected:
    Disposizione() : mCorpo(std::get<1>(GetParam())), mSchermata(creaSchermata(std::get<0>(GetParam()))) {}

    void mostra(QSize grandezza)
    {
        mSchermata->show();
        mSchermata->resize(grandezza);
        ASSERT_TRUE(QTest::qWaitForWindowActive(mSchermata.get()));
        EXPECT_EQ(mSchermata->size(), grandezza) << "the window cannot be as small";
        // A change of the arrangement asks for a layout, and that may bring the scroll bars.
        ASSERT_TRUE(QTest::qWaitFor([this] { return !std::exchange(mDisponeva, dispone()); }));
    }

    AreaForma* area() const { return mSchermata->findChild<AreaForma*>(); }

    CorpoCarattere mCorpo;
    std::unique_ptr<Schermata> mSchermata;

private:
    bool dispone()
    {
        const QSize prima = area()->widget()->size();
        QCoreApplication::processEvents();
        return prima != area()->widget()->size();
    }

    bool mDisponeva = true;
};

INSTANTIATE_TEST_SUITE_P(Schermate, Disposizione,
                         testing::Combine(testing::ValuesIn(schermate), testing::Values(9, 11, 14)),
                         [](const auto& informazioni) {
                             return std::string(std::get<0>(informazioni.param)) + "a" +
                                    std::to_string(std::get<1>(informazioni.param));
                         });

/// How much of its text a line field shows: the way from the cursor's first place to its last, which is
/// shorter than the text when the field must slide it.
int mostrato(QLineEdit* riga)
{
    const auto cursore = [riga] {
        riga->grab(); // it slides where it is painted
        return riga->inputMethodQuery(Qt::ImCursorRectangle).toRectF().center().x();
    };
    riga->end(false);
    const qreal fine = cursore();
    riga->home(false);
    return qRound(fine - cursore());
}

TEST_P(Disposizione, OgniValorePiuLungoSiLeggeIntero)
{
    mostra(grande);
    int misurati = 0;
    for (const MisuraCampo& misura : misureCampi()) {
        auto* controllo = mSchermata->findChild<QWidget*>(QLatin1String(misura.controllo));
        if (!controllo)
            continue;
        ++misurati;
        const QString valore = QString::fromUtf16(misura.piuLungo);
        scrivi(controllo, valore);
        if (auto* riga = qobject_cast<QLineEdit*>(controllo))
            EXPECT_GE(mostrato(riga), riga->fontMetrics().horizontalAdvance(valore) - 1) << misura.controllo;
        else
            EXPECT_GE(controllo->width(), controllo->sizeHint().width()) << misura.controllo;
        EXPECT_GE(controllo->height(), controllo->fontMetrics().height()) << misura.controllo;
    }
    EXPECT_GT(misurati, 28);
}

TEST_P(Disposizione, SiAllarganoSoloRiferimentiEMerce)
{
    const QSet<QString> larghi = {u"barLdv"_s,      u"txtRiferimento"_s,  u"txtRifMitt"_s,
                                  u"txtColli"_s,    u"txtPesoKg"_s,       u"txtVolume"_s,
                                  u"txtAnticipo"_s, u"txtContrassegno"_s, u"txtValMerce"_s};
    for (const MisuraCampo& misura : misureCampi()) {
        const auto* controllo = mSchermata->findChild<QWidget*>(QLatin1String(misura.controllo));
        if (!controllo)
            continue;
        const bool largo = larghi.contains(QLatin1String(misura.controllo));
        EXPECT_EQ(controllo->maximumWidth(), largo ? QWIDGETSIZE_MAX : controllo->minimumWidth())
            << misura.controllo;
    }
}

TEST_P(Disposizione, SoloNomiELuoghiPossonoScorrere)
{
    QStringList senzaMisura;
    const auto righe = mSchermata->findChildren<QLineEdit*>();
    for (const QLineEdit* riga : righe) {
        const auto sua = [riga](const MisuraCampo& m) {
            return riga->objectName() == QLatin1String(m.controllo);
        };
        if (!qobject_cast<QComboBox*>(riga->parentWidget()) &&
            std::none_of(misureCampi().begin(), misureCampi().end(), sua))
            senzaMisura << riga->objectName();
    }
    EXPECT_THAT(senzaMisura,
                UnorderedElementsAre(u"txtDestinatario"_s, u"txtIndDestinatario"_s, u"txtLocalitaDest"_s));
}

TEST_P(Disposizione, LaFinestraSiPuoTenerePiccola)
{
    const QSize minima = mSchermata->minimumSizeHint();
    // The row of the buttons cannot be narrower, and at 200 % nobody takes 14 points besides.
    EXPECT_LE(minima.width(), std::get<1>(GetParam()) > 11 ? piccolo.width() : ingrandito.width());
    EXPECT_LE(minima.height(), ingrandito.height());
    mSchermata->show();
    const QSize schermo = mSchermata->screen()->availableSize();
    EXPECT_LE(mSchermata->width(), qMax(schermo.width(), minima.width()));
    EXPECT_LE(mSchermata->height(), schermo.height());
}

TEST_P(Disposizione, DoveNonCiStaSiArrivaAOgniCampo)
{
    for (const QSize grandezza : {piccolo, ingrandito}) {
        mostra(grandezza);
        const auto campi = mSchermata->findChildren<QWidget*>();
        int raggiunti = 0;
        for (QWidget* campo : campi) {
            const bool ingresso = qobject_cast<QLineEdit*>(campo) || qobject_cast<QPlainTextEdit*>(campo) ||
                                  qobject_cast<QComboBox*>(campo);
            if (!ingresso || !campo->isEnabled() || !area()->isAncestorOf(campo) ||
                qobject_cast<QComboBox*>(campo->parentWidget()))
                continue;
            area()->verticalScrollBar()->setValue(0);
            campo->setFocus();
            QWidget* visto = area()->viewport();
            QRect dove(campo->mapTo(visto, QPoint()), campo->size());
            // One that is wider than the window is reached from its beginning.
            dove.setWidth(qMin(dove.width(), visto->width() / 2));
            EXPECT_TRUE(visto->rect().contains(dove)) << campo->objectName().toStdString();
            ++raggiunti;
        }
        EXPECT_GT(raggiunti, 24);
        mSchermata->convalida().sospendi();
    }
}

TEST_P(Disposizione, SuUnoSchermoPiccoloSiScorreSoloInGiu)
{
    mostra(piccolo);
    EXPECT_EQ(area()->horizontalScrollBar()->maximum(), 0);
}

class Normale : public testing::TestWithParam<const char*>
{};

INSTANTIATE_TEST_SUITE_P(Schermate, Normale, testing::ValuesIn(schermate));

TEST_P(Normale, ANovePuntiCiStaSenzaScorrereEConLeColonneAffiancate)
{
    const CorpoCarattere corpo(9);
    const auto schermata = creaSchermata(GetParam());
    schermata->show();
    schermata->resize(grande);
    auto* area = schermata->findChild<AreaForma*>();
    const auto* spedizione = trova<QGroupBox>(schermata.get(), u"grpSpedizione"_s);
    const auto* giacenza = trova<QGroupBox>(schermata.get(), u"grpGiacenza"_s);
    ASSERT_TRUE(QTest::qWaitFor([&] { return giacenza->x() > spedizione->x(); }));
    EXPECT_EQ(area->verticalScrollBar()->maximum(), 0);
    EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0);

    schermata->resize(piccolo);
    ASSERT_TRUE(QTest::qWaitFor([&] { return giacenza->y() < spedizione->y(); }))
        << "what is typed comes first when they are stacked";
    EXPECT_EQ(area->horizontalScrollBar()->maximum(), 0) << "one direction of scrolling is enough";
}

TEST_P(Normale, IlCarattereSiPuoCambiareASchermataAperta)
{
    const auto schermata = creaSchermata(GetParam());
    schermata->show();
    const int prima = trova<QLineEdit>(schermata.get(), u"txtContrassegno"_s)->minimumWidth();
    const CorpoCarattere corpo(QApplication::font().pointSizeF() * 1.5);
    EXPECT_TRUE(QTest::qWaitFor([&] {
        return trova<QLineEdit>(schermata.get(), u"txtContrassegno"_s)->minimumWidth() > prima * 1.3;
    }));
}

/// How well two colours can be told apart, from 1 to 21.
qreal contrasto(const QColor& uno, const QColor& altro)
{
    const auto luce = [](const QColor& colore) {
        const auto canale = [](qreal v) {
            return v <= 0.03928 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * canale(colore.redF()) + 0.7152 * canale(colore.greenF()) +
               0.0722 * canale(colore.blueF());
    };
    const qreal a = luce(uno), b = luce(altro);
    return (qMax(a, b) + 0.05) / (qMin(a, b) + 0.05);
}

void esaminaColori(Schermata& schermata)
{
    constexpr qreal leggibile = 4.5;
    for (const QString& nome : {u"lblGiaInGiacenza"_s, u"lblStatoCaso"_s})
        if (auto* insegna = schermata.findChild<QLabel*>(nome)) {
            insegna->show();
            insegna->ensurePolished();
            const QColor fondo = insegna->palette().color(QPalette::Window);
            EXPECT_GE(contrasto(insegna->palette().color(QPalette::WindowText), fondo), leggibile)
                << nome.toStdString();
            EXPECT_GE(contrasto(fondo, schermata.palette().color(QPalette::Window)), leggibile)
                << nome.toStdString() << " stands out";
        }
    auto* avanzo = trova<QLineEdit>(&schermata, u"txtContrassegno"_s);
    avanzo->setProperty("avanzo", true);
    rinnovaAspetto(avanzo);
    QCoreApplication::processEvents();
    const QColor grigio = avanzo->palette().color(QPalette::Text);
    EXPECT_NE(grigio, schermata.palette().color(QPalette::Text));
    EXPECT_GE(contrasto(grigio, schermata.palette().color(QPalette::Window)), leggibile) << "the left-over";
}

TEST_P(Normale, ConUnaTavolozzaScuraTuttoSiLegge)
{
    const auto schermata = creaSchermata(GetParam());
    schermata->show();
    esaminaColori(*schermata);
    const QPalette prima = QApplication::palette();
    QPalette scura(QColor(53, 53, 53), QColor(42, 42, 46));
    scura.setColor(QPalette::Base, QColor(30, 30, 33));
    const QString chiaro = schermata->styleSheet();
    QApplication::setPalette(scura);
    EXPECT_TRUE(QTest::qWaitFor([&] { return schermata->styleSheet() != chiaro; }));
    EXPECT_LT(schermata->palette().color(QPalette::Window).lightness(), 60);
    esaminaColori(*schermata);
    QApplication::setPalette(prima);
}

} // namespace
