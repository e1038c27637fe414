#include "finestra.h"

#include <QApplication>

int main(int argc, char* argv[])
{
    QApplication applicazione(argc, argv);
    QApplication::setApplicationName(QStringLiteral("deposito"));
    QApplication::setApplicationDisplayName(QStringLiteral("Gestione Trasporti"));
    QApplication::setQuitOnLastWindowClosed(false);
    deposito::parlaItaliano(applicazione);

    deposito::Finestra finestra(deposito::leggiOpzioni(applicazione));
    finestra.show();
    return QApplication::exec();
}
