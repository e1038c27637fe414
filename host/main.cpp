#include "finestra.h"

#include <QApplication>

namespace {

/// --help and --version: a text, also where there is no display, as on a server or in a script.
[[noreturn]] void rispondiSenzaSchermo(int argc, char** argv)
{
    QCoreApplication applicazione(argc, argv);
    deposito::parlaItaliano(applicazione);
    deposito::leggiOpzioni(applicazione);
    qFatal("the command line asked for a text and gave none");
}

} // namespace

int main(int argc, char* argv[])
{
    deposito::presentati();
    if (deposito::chiedeSoloTesto(argc, argv))
        rispondiSenzaSchermo(argc, argv);
    QApplication applicazione(argc, argv);
    QApplication::setWindowIcon(deposito::icona());
    QApplication::setQuitOnLastWindowClosed(false);
    deposito::parlaItaliano(applicazione);

    deposito::Finestra finestra(deposito::leggiOpzioni(applicazione));
    finestra.show();
    return QApplication::exec();
}
