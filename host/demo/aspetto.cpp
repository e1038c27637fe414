#include "aspetto.h"

#include <QApplication>
#include <QFont>
#include <QPalette>

#include <stdexcept>

using namespace Qt::StringLiterals;

namespace {

const QString opzionePunti = u"punti"_s;
const QString opzioneScuro = u"scuro"_s;

// What a dark desktop hands to its programs; Qt works the other shades out of these.
QPalette tavolozzaScura()
{
    QPalette colori(QColor(53, 53, 53), QColor(42, 42, 46));
    colori.setColor(QPalette::Base, QColor(30, 30, 33));
    colori.setColor(QPalette::AlternateBase, QColor(38, 38, 42));
    colori.setColor(QPalette::ToolTipBase, QColor(42, 42, 46));
    colori.setColor(QPalette::Link, QColor(120, 170, 255));
    return colori;
}

} // namespace

void aggiungiAspetto(QCommandLineParser& opzioni)
{
    opzioni.addOptions({{opzionePunti, u"Grandezza dei caratteri, da 6 a 24 punti."_s, u"punti"_s},
                        {opzioneScuro, u"Colori scuri."_s}});
}

void impostaAspetto(const QCommandLineParser& opzioni)
{
    if (opzioni.isSet(opzionePunti)) {
        const int punti = opzioni.value(opzionePunti).toInt();
        if (punti < 6 || punti > 24)
            throw std::runtime_error("--punti vuole un numero da 6 a 24");
        QFont carattere = QApplication::font();
        carattere.setPointSize(punti);
        QApplication::setFont(carattere);
    }
    if (opzioni.isSet(opzioneScuro))
        QApplication::setPalette(tavolozzaScura());
}

void fotografaNeiDueColori(Regista& regista, QWidget* finestra, const QString& nome)
{
    regista.fotografa(finestra, nome);
    const QPalette chiara = QApplication::palette();
    QApplication::setPalette(tavolozzaScura());
    regista.rifotografa(finestra, nome + u"-scuro"_s);
    QApplication::setPalette(chiara);
    QCoreApplication::processEvents();
}
