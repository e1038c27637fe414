#include "finestra.h"

#include <QApplication>

using namespace Qt::StringLiterals;

int main(int argc, char* argv[])
{
    QApplication applicazione(argc, argv);
    QApplication::setApplicationName(u"deposito"_s);
    QApplication::setApplicationDisplayName(u"Gestione Trasporti"_s);
    QApplication::setQuitOnLastWindowClosed(false);
    deposito::parlaItaliano(applicazione);

    deposito::Finestra finestra(deposito::leggiOpzioni(applicazione));
    finestra.show();
    return QApplication::exec();
}
