#include "finestra.h"
#include "registro.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>

namespace {

/// --help, --version and --prepara-registro: a text, also where there is no display, as on a server or in a
/// script.
[[noreturn]] void rispondiSenzaSchermo(int argc, char** argv)
{
    QCoreApplication applicazione(argc, argv);
    deposito::parlaItaliano(applicazione);
    const deposito::Opzioni opzioni = deposito::leggiOpzioni(applicazione);
    if (!opzioni.preparaRegistro)
        qFatal("the command line asked for a text and gave none");
    const deposito::EsitoRegistro esito = opzioni.guasto.isEmpty()
                                              ? deposito::preparaRegistroDi(opzioni.database)
                                              : deposito::EsitoRegistro{opzioni.guasto, false};
    std::fprintf(esito.pronto ? stdout : stderr, "%s\n", qUtf8Printable(esito.testo));
    std::exit(esito.pronto ? EXIT_SUCCESS : EXIT_FAILURE);
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
