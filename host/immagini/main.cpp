#include "host/finestra.h"
#include "host/immagini/capitoli.h"

#include <QApplication>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

QtMessageHandler diPrima = nullptr;

/// The platform without a display says at every window what it cannot do; everything else is passed on.
void senzaRumore(QtMsgType tipo, const QMessageLogContext& contesto, const QString& testo)
{
    if (!testo.startsWith("This plugin does not support"_L1))
        diPrima(tipo, contesto, testo);
}

int fotografa(const QString& cartella)
{
    Album album(cartella, qEnvironmentVariable("GIACENZA_DATABASE"));
    fotografaProgramma(album);
    fotografaRegistrazione(album);
    fotografaGestione(album);
    fotografaRiconsegna(album);
    fotografaBanco(album);
    return 0;
}

} // namespace

/// deposito-immagini FOLDER: takes the pictures of the guide. The connection string is in GIACENZA_DATABASE,
/// the story's day in GIACENZA_OGGI.
int main(int argc, char** argv)
{
    diPrima = qInstallMessageHandler(senzaRumore);
    deposito::presentati();
    QApplication applicazione(argc, argv);
    QApplication::setWindowIcon(deposito::icona());
    // A blinking cursor would be there in one picture and not in the next.
    QApplication::setCursorFlashTime(0);
    deposito::parlaItaliano(applicazione);
    if (argc != 2) {
        std::fprintf(stderr, "Uso: deposito-immagini CARTELLA\n");
        return 2;
    }
    try {
        return fotografa(QString::fromLocal8Bit(argv[1]));
    } catch (const std::exception& errore) {
        std::fprintf(stderr, "Le immagini si sono fermate: %s\n", errore.what());
        return 1;
    }
}
