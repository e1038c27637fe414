#include "desk/finestra/aspettodesk.h"

#include <QApplication>
#include <QEvent>
#include <QPalette>
#include <QWidget>

using namespace Qt::StringLiterals;

namespace giacenza::desk {

namespace {

bool scuro()
{
    const QPalette colori = QGuiApplication::palette();
    return colori.color(QPalette::Window).lightnessF() < colori.color(QPalette::WindowText).lightnessF();
}

QColor traChiaroEScuro(const QString& chiaro, const QString& perScuro)
{
    return QColor(scuro() ? perScuro : chiaro);
}

QString aspettoDesk()
{
    return uR"(
QLineEdit#txtCerca { font-size: 13pt; padding: 5px 8px; }
QLineEdit#txtCerca:focus { border: 2px solid palette(highlight); }
QLineEdit[filtra="true"] { font-weight: bold; padding: 1px 3px; border: 2px solid palette(highlight); }
QLabel[titolo="true"] { font-size: 14pt; font-weight: bold; }
QLabel[totale="true"] { font-weight: bold; }
QLabel[insegna="true"] { font-weight: bold; padding: 2px 10px; border: 2px solid; }
QTableView { gridline-color: palette(midlight); }
)"_s;
}

/// Puts a window's style sheet on anew when the desktop's colours change: what a style sheet has polished
/// keeps the colours of then.
class Rivestitore : public QObject
{
public:
    explicit Rivestitore(QWidget* finestra) : QObject(finestra), mFinestra(finestra)
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* oggetto, QEvent* evento) override
    {
        // A widget in a window is not told; and the windows are, one after the other, only after this.
        if (oggetto == qApp && evento->type() == QEvent::ApplicationPaletteChange)
            QMetaObject::invokeMethod(this, &Rivestitore::rivesti, Qt::QueuedConnection);
        return QObject::eventFilter(oggetto, evento);
    }

private:
    void rivesti()
    {
        mFinestra->setStyleSheet({});
        mFinestra->setStyleSheet(aspettoDesk());
    }

    QWidget* mFinestra;
};

} // namespace

QColor colore(Stato stato)
{
    switch (stato) {
    case Stato::daAvvisare:
        return traChiaroEScuro(u"#1f5c99"_s, u"#82b8ee"_s);
    case Stato::inAddebito:
        return coloreAllarme();
    case Stato::inScadenza:
        return traChiaroEScuro(u"#a65200"_s, u"#ffb74d"_s);
    case Stato::ferma:
        return traChiaroEScuro(u"#6a3d9a"_s, u"#c9a6f0"_s);
    case Stato::inAttesa:
        break;
    }
    return traChiaroEScuro(u"#2e6b34"_s, u"#98d49c"_s);
}

QColor coloreAllarme()
{
    return traChiaroEScuro(u"#a3261b"_s, u"#ff8a80"_s);
}

void vesti(QWidget* finestra)
{
    finestra->setStyleSheet(aspettoDesk());
    new Rivestitore(finestra);
}

void tingi(QWidget* etichetta, const QColor& colore)
{
    QPalette colori = QGuiApplication::palette();
    if (colore.isValid())
        colori.setColor(QPalette::WindowText, colore);
    etichetta->setPalette(colori);
    // A style sheet does not look at the palette: its words take their colour from here.
    etichetta->setStyleSheet(colore.isValid() ? u"color: %1; border-color: %1;"_s.arg(colore.name())
                                              : QString());
}

} // namespace giacenza::desk
