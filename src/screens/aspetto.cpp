#include "screens/aspetto.h"

#include <QGuiApplication>
#include <QPalette>

using namespace Qt::StringLiterals;

namespace giacenza {

namespace {

/// A colour between two: the nearer to uno, the higher quanto, from 0 to 1.
QString tra(const QColor& uno, const QColor& altro, qreal quanto)
{
    const auto misto = [quanto](qreal primo, qreal secondo) {
        return primo * quanto + secondo * (1 - quanto);
    };
    return QColor::fromRgbF(static_cast<float>(misto(uno.redF(), altro.redF())),
                            static_cast<float>(misto(uno.greenF(), altro.greenF())),
                            static_cast<float>(misto(uno.blueF(), altro.blueF())))
        .name();
}

/// The banners: dark with white words on a light screen, light with black words on a dark one.
struct Insegne
{
    QString testo;
    QString allarme;
    QString aperta;
    QString chiusa;
    QString avvertenza; ///< words and frames of hints
};

Insegne insegne(bool scuro)
{
    if (scuro)
        return {u"#161616"_s, u"#ff8a80"_s, u"#82b8ee"_s, u"#b4b9c0"_s, u"#ffb74d"_s};
    return {u"#ffffff"_s, u"#a3261b"_s, u"#1f5c99"_s, u"#5a5f66"_s, u"#a65200"_s};
}

} // namespace

QString aspettoSchermata()
{
    const QPalette colori = QGuiApplication::palette();
    const QColor testo = colori.color(QPalette::Active, QPalette::WindowText);
    const QColor fondo = colori.color(QPalette::Active, QPalette::Window);
    const Insegne i = insegne(fondo.lightnessF() < testo.lightnessF());
    return uR"(
QLineEdit[readOnly="true"], QPlainTextEdit[readOnly="true"] { background-color: palette(window); }
QLineEdit:disabled { background-color: palette(window); }
QLineEdit[readOnly="true"]:disabled { color: %1; }
QComboBox:disabled { color: palette(text); }
QLabel[barra="true"] { padding: 3px 4px; }
QLabel[alta="true"] { padding-top: 2px; }
QLabel#lblGiaInGiacenza { background-color: %2; color: %3; font-weight: bold; padding: 3px 10px; }
QLabel#lblClienteLdv { background-color: %2; color: %3; font-weight: bold; padding: 3px 10px; }
QLabel[avvertenza="true"] { color: %7; font-weight: bold; }
QLineEdit[avvertenza="true"], QPlainTextEdit[avvertenza="true"] { border: 2px solid %7; }
QLabel#lblStatoCaso { background-color: %4; color: %3; font-weight: bold; padding: 3px 10px; }
QLabel#lblStatoCaso[chiusa="true"] { background-color: %5; }
*[avanzo="true"] { color: %6; font-style: italic; }
)"_s.arg(tra(testo, fondo, 0.75), i.allarme, i.testo, i.aperta, i.chiusa, tra(testo, fondo, 0.58),
         i.avvertenza);
}

} // namespace giacenza
